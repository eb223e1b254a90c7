// The common dialogs, also those that no case shows yet: each rule of theirs, and the rules of all
// forms.
#include <gtest/gtest.h>

#include "shell/personal/form_program_choice.h"
#include "tariff/forms/form_amounts.h"
#include "tariff/forms/form_class.h"
#include "tariff/forms/form_kind.h"
#include "tariff/forms/form_question.h"
#include "tests/unit/fake_player.h"
#include "tests/unit/form_rules.h"

namespace orm {
namespace {

class CommonForms : public ::testing::Test {
 protected:
  FakePlayer player;
  RunState stato{player, WorkFolder(".")};
  double importo = 0;
};

void ExpectRules(const Form& form) {
  for (const std::string& fault : FormRules::Broken(form)) ADD_FAILURE() << fault;
}

TEST_F(CommonForms, ClassShowsItsTextsAndCategories) {
  stato.ModoLire = true;
  std::string classe, categoria;
  FrmGenClasse form(stato, {}, classe, categoria, {.proposta = true}, {&importo});
  ExpectRules(form);
  form.Open();
  EXPECT_EQ(form.comClasse.Items().size(), 9U);
  EXPECT_EQ(form.comClasse.Index(), 0);
  EXPECT_EQ(form.lblClasse.Text(), form.comClasse.ShownText());
  EXPECT_TRUE(form.lblCategoria.Text().starts_with("a - Costruzioni  informate"));
  EXPECT_TRUE(form.importo.ci.IsShown() && !form.importo.cd.IsShown() && !form.Image1.IsShown());

  form.comClasse.SetIndex(6);
  EXPECT_EQ(form.comCategoria.Items().size(), 3U);
  EXPECT_EQ(form.comCategoria.Index(), 0);
  form.comCategoria.SetIndex(2);
  EXPECT_EQ(form.lblCategoria.Text(), "c - Opere di navigazione interna e portuali.");
}

TEST_F(CommonForms, ClassesFiveAndEightHaveNoCategory) {
  for (const std::string classe : {"5", "8"}) {
    std::string presa = classe, categoria = "a";
    FrmGenClasse form(stato, {.numero = 1, .esistenti = 1}, presa, categoria);
    ExpectRules(form);
    form.Open();
    EXPECT_FALSE(form.comCategoria.IsShown() || form.lblCategoria.IsShown());
    EXPECT_FALSE(form.importo.cd.IsShown() || form.importo.ci.IsShown());
    form.cmdCONFERMA.Press();
    EXPECT_TRUE(player.messages.empty() && form.Confermato());
    EXPECT_EQ(presa, classe);
    EXPECT_EQ(categoria, "");
    form.comClasse.SetIndex(8);
    EXPECT_TRUE(form.comCategoria.IsShown());
  }
}

TEST_F(CommonForms, ClassWithoutAmountStaysOpenAndSaysHowToEnd) {
  stato.ModoLire = true;
  std::string classe, categoria;
  FrmGenClasse form(stato, {}, classe, categoria, {}, {&importo});
  form.Open();
  form.comClasse.SetIndex(2);
  form.comCategoria.SetIndex(1);
  form.cmdCONFERMA.Press();
  ASSERT_EQ(player.messages.size(), 1U);
  EXPECT_EQ(player.messages[0].title, "  ATTENZIONE !! ");
  EXPECT_EQ(player.messages[0].text,
            "VALORE NON ACCETTABILE : importo nullo !\nPer finire l'introduzione dati occorre "
            "premere\nFINE INPUT CLASSI E CATEGORIE");
  EXPECT_TRUE(form.IsOpen());
  EXPECT_EQ(form.TipodiUscita, Form::Uscita::Finestra);

  EXPECT_EQ(form.importo.ci.Enter("1.500.000"), "");
  form.cmdCONFERMA.Press();
  EXPECT_FALSE(form.IsOpen());
  EXPECT_TRUE(form.Confermato());
  EXPECT_EQ(classe + categoria, "3b");
  EXPECT_EQ(importo, 1500000);
}

TEST_F(CommonForms, ClassEndsOrRefuses) {
  std::string classe = "1", categoria = "a";
  importo = 5;
  FrmGenClasse form(stato, {1, 1, "NON SI POSSONO INTRODURRE ALTRI LOTTI"}, classe, categoria, {},
                    {&importo});
  form.Open();
  form.cmdCONFERMA.Press();
  ASSERT_EQ(player.messages.size(), 1U);
  EXPECT_EQ(
      player.messages[0].text,
      "NON SI POSSONO INTRODURRE ALTRI LOTTI\nPer finire l'introduzione dati occorre premere\n" +
          form.cmdFINE.ShownText());
  EXPECT_TRUE(form.IsOpen());
  form.cmdFINE.Press();
  EXPECT_FALSE(form.IsOpen());
  EXPECT_EQ(form.TipodiUscita, Form::Uscita::Fine);
}

TEST_F(CommonForms, KindHasFourOptions) {
  const std::array<std::string, 4> values = {"NORMALE", "CONSUNTIVA", "INTERROTTA", "SCISSA"};
  for (std::size_t i = 0; i < values.size(); ++i) {
    FrmGenTipologia form(player, values[i]);
    ExpectRules(form);
    form.Open();
    EXPECT_EQ(form.tipo.Chosen(), static_cast<int>(i));
    form.Option[3 - i].SetValue(true);
    form.OKbutton.Press();
    EXPECT_EQ(form.TipoParcella, values[3 - i]);
    EXPECT_TRUE(form.Confermato());
    EXPECT_FALSE(form.IsOpen());
  }
  FrmGenTipologia form(player, "SCISSA");
  form.Open();
  form.OnWindowClose();
  EXPECT_EQ(form.TipoParcella, "SCISSA");
  EXPECT_FALSE(form.Confermato());
}

TEST_F(CommonForms, QuestionIsAnsweredOrLeft) {
  FrmGenSiNo form("TITOLO", "Si fa?", "", "altro");
  ExpectRules(form);
  form.Open();
  EXPECT_TRUE(form.OptionNO.Value());
  EXPECT_FALSE(form.Avvertenza.IsShown());
  form.OptionSI.SetValue(true);
  form.OnWindowClose();
  EXPECT_EQ(form.Risposta, "NO");
  form.Open();
  form.Command1.Press();
  EXPECT_EQ(form.Risposta, "SI");
  const FrmGenSiNo warned("TITOLO", "Si fa?", "Attenzione", "SI");
  EXPECT_TRUE(warned.Avvertenza.IsShown() && warned.OptionSI.Value());
}

TEST_F(CommonForms, OneAmountGoesByTheCurrency) {
  for (const bool lire : {true, false}) {
    stato.ModoLire = lire;
    importo = 12;
    FrmGenUnoImporti form(stato, "COSTO", "Importo dei lavori", importo);
    ExpectRules(form);
    form.Open();
    EXPECT_EQ(form.importo.ci.IsShown(), lire);
    EXPECT_EQ(form.importo.cd.IsShown(), !lire);
    EXPECT_EQ(form.Image1.IsShown(), !lire);
    EXPECT_FALSE(form.Label1.IsShown() || form.Label2.IsShown());
    form.SetTariffa("TARIFFA", "D.M. 4-4-2001");
    EXPECT_TRUE(form.Label1.IsShown());
    EXPECT_EQ(form.importo.Value(), 12);
    form.Find(lire ? "InterBox1" : "FloatBox1")->Enter("34");
    EXPECT_EQ(importo, 12);
    form.cmdOK.Press();
    EXPECT_TRUE(form.Confermato());
    EXPECT_EQ(importo, 34);
  }
}

TEST_F(CommonForms, ProgramChoiceGivesThePathBack) {
  FrmGenListaFile form(player, "/usr/bin/editor");
  ExpectRules(form);
  form.Open();
  form.cmdCerca.Press();  // the person gives up
  EXPECT_EQ(form.File1.Text(), "/usr/bin/editor");
  form.cmdOK.Press();
  EXPECT_EQ(form.Percorso, "/usr/bin/editor");
}

}  // namespace
}  // namespace orm
