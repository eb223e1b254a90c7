#include "tariff/forms/form_amount.h"

#include "tariff/forms/amount_limits.h"

namespace orm {

FrmGenUnoImporti::FrmGenUnoImporti(RunState& stato, std::string titolo, std::string riquadro,
                                   double importo)
    : Form("frmGEN_UNOIMPORTI", std::move(titolo)),
      Label1(*this, "Label1", "TARIFFA", {.readOnly = true}),
      Label2(*this, "Label2", "CLASSE/CATEGORIA", {.readOnly = true}),
      Frame1(*this, "Frame", std::move(riquadro)),
      FloatBox1(*this, "FloatBox1", "", kWorksEuro),
      InterBox1(*this, "InterBox1", "", kWorksLire),
      Image1(*this, "Image1", Image::Subject::Euro),
      cmdOK(*this, "cmdOK", "&O.K.", Button::Role::Default),
      stato_(stato) {
  SetContent(
      Column({Fields({Label1, Label2}),
              Group(Frame1, {Row({Fields({FloatBox1, InterBox1}), Image1})}), Buttons({cmdOK})}));
  Label1.SetVisible(false);
  Label2.SetVisible(false);
  FloatBox1.SetVisible(!stato.ModoLire);
  InterBox1.SetVisible(stato.ModoLire);
  Image1.SetVisible(!stato.ModoLire);
  FloatBox1.SetValue(importo);
  InterBox1.SetValue(importo);
  cmdOK.onPress = [this] { Esci(Uscita::Conferma); };
}

double FrmGenUnoImporti::Importo() const {
  return stato_.ModoLire ? InterBox1.Value() : FloatBox1.Value();
}

void FrmGenUnoImporti::SetTariffa(std::string etichetta, std::string valore) {
  Label1.SetVisible(!valore.empty());
  Label1.SetCaption(std::move(etichetta));
  Label1.SetText(std::move(valore));
}

void FrmGenUnoImporti::SetClasseCategoria(std::string etichetta, std::string valore) {
  Label2.SetVisible(!valore.empty());
  Label2.SetCaption(std::move(etichetta));
  Label2.SetText(std::move(valore));
}

}  // namespace orm
