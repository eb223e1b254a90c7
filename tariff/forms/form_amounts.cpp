#include "tariff/forms/form_amounts.h"

namespace orm {

FrmGenUnoImporti::FrmGenUnoImporti(RunState& stato, std::string titolo, std::string riquadro,
                                   const ImportoChiesto& chiesto)
    : FormInput(stato, "frmGEN_UNOIMPORTI", std::move(titolo), "importo") {
  SetContent(Column({Fields({Label1, Label2}),
                     Group(Frame1, {Row({AmountFields({importo}), Image1})}), Buttons({cmdOK})}));
  Frame1.SetCaption(std::move(riquadro));
  Label1.SetVisible(false);
  Label2.SetVisible(false);
  importo.Chiedi(chiesto);
  cmdOK.onPress = [this] { Conferma({&importo, 1}); };
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

FrmPdlImporti::FrmPdlImporti(RunState& stato, std::string titolo, const ImportiPdl& importi)
    : FormInput(stato, "frmPDL_Importi", std::move(titolo), "importi") {
  auto& [lavori, espropri, suppletivi, espropriPerizie, direzione] = importo;
  SetContent(Column({Group(Frame1, {Row({AmountFields({lavori, espropri}), Image1})}),
                     Group(Frame2, {AmountFields({suppletivi, espropriPerizie})}),
                     Group(Frame3, {AmountFields({direzione})}), lblNota, Buttons({Command1})}));
  for (std::size_t i = 0; i < importo.size(); ++i) importo[i].Chiedi(importi[i]);
  Frame2.SetVisible(importi[2].posto != nullptr);
  Command1.onPress = [this] { Conferma(importo); };
}

}  // namespace orm
