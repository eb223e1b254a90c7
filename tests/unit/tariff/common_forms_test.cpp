// The common dialogs, also those that no case shows yet: each rule of theirs, and the rules of all
// forms.
#include <gtest/gtest.h>

#include "shell/personal/form_program_choice.h"
#include "tariff/forms/form_amount.h"
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
};

void ExpectRules(const Form& form) {
  for (const std::string& fault : FormRules::Broken(form)) ADD_FAILURE() << fault;
}

TEST_F(CommonForms, ClassStartsFromTheFirstAndShowsItsTexts) {
  stato.ModoLire = true;
  FrmGenClasse form(stato, true);
  ExpectRules(form);
  form.Open();
  EXPECT_EQ(form.comClasse.Items().size(), 9U);
  EXPECT_EQ(form.comClasse.Index(), 0);
  EXPECT_EQ(form.lblClasse.Text(), form.comClasse.ShownText());
  EXPECT_TRUE(form.lblCategoria.Text().starts_with("a - Costruzioni  informate"));
  EXPECT_TRUE(form.ciImporto.IsShown() && !form.cdImporto.IsShown() && !form.Image1.IsShown());

  form.comClasse.SetIndex(6);
  EXPECT_EQ(form.comCategoria.Items().size(), 3U);
  EXPECT_EQ(form.comCategoria.Index(), 0);
  form.comCategoria.SetIndex(2);
  EXPECT_EQ(form.lblCategoria.Text(), "c - Opere di navigazione interna e portuali.");
}

TEST_F(CommonForms, ClassesFiveAndEightHaveNoCategory) {
  FrmGenClasse form(stato, true);
  form.Open();
  for (const char* classe : {"5", "8"}) {
    form.SetClasse(classe);
    EXPECT_FALSE(form.comCategoria.IsShown());
    EXPECT_FALSE(form.lblCategoria.IsShown());
    form.cdImporto.SetValue(10);
    form.cmdCONFERMA.Press();
    EXPECT_EQ(form.Classe, classe);
    EXPECT_EQ(form.Categoria, "");
  }
  form.SetClasse("9");
  EXPECT_TRUE(form.comCategoria.IsShown());
}

TEST_F(CommonForms, ClassWithoutAmountStaysOpenAndSaysHowToEnd) {
  stato.ModoLire = true;
  FrmGenClasse form(stato, true);
  form.Open();
  form.cmdCONFERMA.Press();
  ASSERT_EQ(player.messages.size(), 1U);
  EXPECT_EQ(player.messages[0].title, "  ATTENZIONE !! ");
  EXPECT_EQ(player.messages[0].text,
            "VALORE NON ACCETTABILE : importo nullo !\nPer finire l'introduzione dati occorre "
            "premere\nFINE INPUT CLASSI E CATEGORIE");
  EXPECT_TRUE(form.IsOpen());
  EXPECT_EQ(form.TipodiUscita, Form::Uscita::Finestra);

  form.SetClasse("3");
  form.SetCategoria("b");
  EXPECT_EQ(form.ciImporto.Enter("1.500.000"), "");
  form.cmdCONFERMA.Press();
  EXPECT_FALSE(form.IsOpen());
  EXPECT_TRUE(form.Confermato());
  EXPECT_EQ(form.Classe + form.Categoria, "3b");
  EXPECT_EQ(form.Importo, 1500000);
}

TEST_F(CommonForms, ClassAloneAsksNoAmount) {
  FrmGenClasse form(stato, false);
  ExpectRules(form);
  form.Open();
  EXPECT_FALSE(form.cdImporto.IsShown() || form.ciImporto.IsShown());
  form.SetClasse("2");
  form.cmdCONFERMA.Press();
  EXPECT_TRUE(player.messages.empty());
  EXPECT_TRUE(form.Confermato());
  EXPECT_EQ(form.Classe + form.Categoria, "2a");
}

TEST_F(CommonForms, ClassEndsOrRefuses) {
  FrmGenClasse form(stato, true);
  form.Open();
  form.Rifiuto = "NON SI POSSONO INTRODURRE ALTRI LOTTI";
  form.SetImporto(5);
  form.cmdCONFERMA.Press();
  ASSERT_EQ(player.messages.size(), 1U);
  EXPECT_EQ(player.messages[0].text, form.Rifiuto +
                                         "\nPer finire l'introduzione dati occorre premere\n" +
                                         form.cmdFINE.ShownText());
  EXPECT_TRUE(form.IsOpen());
  form.cmdFINE.Press();
  EXPECT_FALSE(form.IsOpen());
  EXPECT_EQ(form.TipodiUscita, Form::Uscita::Fine);
  EXPECT_EQ(form.Classe, "0");
}

TEST_F(CommonForms, KindHasFourOptionsEachWithItsHelp) {
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
  for (Button& help : form.Help) help.Press();
  ASSERT_EQ(player.messages.size(), 4U);
  const std::array<const char*, 4> endings = {
      "SE SEPARA GLI INCARICHI DI PROGETTAZIONE E D.L.",
      "LAVORI RISPETTO ALLA STIMA DEL PROGETTO ORIGINARIO o DI PERIZIA",
      "DEI LAVORI PER DECISIONE DEL COMMITTENTE", "PER LA PROGETTAZIONE E LA DIREZIONE DEI LAVORI"};
  const std::array<int, 4> lines = {8, 4, 3, 3};
  for (std::size_t i = 0; i < endings.size(); ++i) {
    const MessageBox& box = player.messages[i];
    EXPECT_EQ(box.title, "  INFORMAZIONE ");
    EXPECT_TRUE(box.text.ends_with(endings[i])) << box.text;
    EXPECT_EQ(std::count(box.text.begin(), box.text.end(), '\n') + 1, lines[i]);
  }
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
    FrmGenUnoImporti form(stato, "COSTO", "Importo dei lavori", 12);
    ExpectRules(form);
    form.Open();
    EXPECT_EQ(form.InterBox1.IsShown(), lire);
    EXPECT_EQ(form.FloatBox1.IsShown(), !lire);
    EXPECT_EQ(form.Image1.IsShown(), !lire);
    EXPECT_FALSE(form.Label1.IsShown() || form.Label2.IsShown());
    form.SetTariffa("TARIFFA", "D.M. 4-4-2001");
    EXPECT_TRUE(form.Label1.IsShown());
    EXPECT_EQ(form.Importo(), 12);
    (lire ? static_cast<NumberBox&>(form.InterBox1) : form.FloatBox1).Enter("34");
    form.cmdOK.Press();
    EXPECT_TRUE(form.Confermato());
    EXPECT_EQ(form.Importo(), 34);
  }
}

TEST_F(CommonForms, ProgramChoiceGivesThePathBack) {
  FrmGenListaFile form(player, "/usr/bin/editor");
  ExpectRules(form);
  form.Open();
  form.cmdCerca.Press();  // the person gives up
  EXPECT_EQ(form.File1.Text(), "/usr/bin/editor");
  form.cmdOK.Press();
  EXPECT_TRUE(form.Confermato());
}

}  // namespace
}  // namespace orm
