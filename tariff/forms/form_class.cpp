#include "tariff/forms/form_class.h"

#include "dialogs/message_boxes.h"
#include "tariff/forms/amount_box.h"
#include "tariff/law/table_classes.h"

namespace orm {

FrmGenClasse::FrmGenClasse(RunState& stato, bool chiedeImporto)
    : Form("frmGEN_Classe", ""),
      Label1(*this, "Label1", "NUOVO LOTTO", Label::Style::Title),
      comClasse(*this, "comClasse", "CLASSE"),
      lblClasse(*this, "lblClasse", "", Label::Style::Note),
      comCategoria(*this, "comCategoria", "CATEGORIA"),
      lblCategoria(*this, "lblCategoria", "", Label::Style::Note),
      cdImporto(*this, "cdImporto", "IMPORTO", kWorksEuro),
      ciImporto(*this, "ciImporto", "IMPORTO", kWorksLire),
      Image1(*this, "Image1", Image::Subject::Euro),
      cmdCONFERMA(*this, "cmdCONFERMA", "&O.K", Button::Role::Default),
      cmdFINE(*this, "cmdFINE", "&FINE INPUT CLASSI E CATEGORIE"),
      stato_(stato),
      chiedeImporto_(chiedeImporto) {
  SetContent(
      Column({Label1, Fields({comClasse}), lblClasse, Fields({comCategoria}), lblCategoria,
              Row({Fields({cdImporto, ciImporto}), Image1}), Buttons({cmdCONFERMA, cmdFINE})}));
  std::vector<std::string> names;
  for (const NomiClasse& classe : kNomiClassi) names.emplace_back(classe.nome);
  comClasse.SetItems(std::move(names));
  comClasse.onChange = [this] { ShowCategories(); };
  comCategoria.onChange = [this] { lblCategoria.SetText(comCategoria.ShownText()); };
  cdImporto.SetVisible(chiedeImporto && !stato.ModoLire);
  ciImporto.SetVisible(chiedeImporto && stato.ModoLire);
  Image1.SetVisible(!stato.ModoLire);
  comClasse.SetIndex(0);
  cmdCONFERMA.onPress = [this] { Confirm(); };
  cmdFINE.onPress = [this] { Finish(); };
}

void FrmGenClasse::ShowCategories() {
  lblClasse.SetText(comClasse.ShownText());
  std::vector<std::string> texts;
  if (comClasse.Index() >= 0)
    for (const std::string_view categoria :
         kNomiClassi[static_cast<std::size_t>(comClasse.Index())].categorie)
      texts.emplace_back(categoria);
  const bool any = !texts.empty();
  comCategoria.SetItems(std::move(texts));
  comCategoria.SetVisible(any);
  lblCategoria.SetVisible(any);
  lblCategoria.SetText("");
  comCategoria.SetIndex(0);
}

void FrmGenClasse::SetClasse(const std::string& classe) {
  Classe = classe;
  comClasse.SetIndex(classe.empty() ? -1 : classe[0] - '1');
}

void FrmGenClasse::SetCategoria(const std::string& categoria) {
  Categoria = categoria;
  comCategoria.SetIndex(categoria.empty() ? -1 : categoria[0] - 'a');
}

void FrmGenClasse::SetImporto(double importo) {
  Importo = importo;
  cdImporto.SetValue(importo);
  ciImporto.SetValue(importo);
}

// Says why a lot is not taken, and how the input ends.
void FrmGenClasse::Refuse(const std::string& motivo) {
  stato_.player.Ask(
      Avviso(motivo + "\nPer finire l'introduzione dati occorre premere\n" + cmdFINE.ShownText()));
}

void FrmGenClasse::Confirm() {
  const bool manca =
      comClasse.Index() < 0 || (!comCategoria.Items().empty() && comCategoria.Index() < 0);
  const double importo = stato_.ModoLire ? ciImporto.Value() : cdImporto.Value();
  if (!Rifiuto.empty()) return Refuse(Rifiuto);
  if (manca) return Refuse("SCEGLIERE LA CLASSE E LA CATEGORIA.");
  if (chiedeImporto_ && importo == 0) return Refuse("VALORE NON ACCETTABILE : importo nullo !");
  const double massimo = (stato_.ModoLire ? ciImporto.Limits() : cdImporto.Limits()).most;
  if (const auto motivo = SommaEccessiva("IMPORTO", importo, AltriLotti, massimo);
      !motivo.empty()) {
    stato_.player.Ask(Avviso(motivo));
    return;
  }
  if (chiedeImporto_) Importo = importo;
  Classe = std::string(1, static_cast<char>('1' + comClasse.Index()));
  Categoria = comCategoria.Index() < 0
                  ? std::string()
                  : std::string(1, static_cast<char>('a' + comCategoria.Index()));
  Esci(Uscita::Conferma);
}

void FrmGenClasse::Finish() {
  Classe = "0";
  Esci(Uscita::Fine);
}

}  // namespace orm
