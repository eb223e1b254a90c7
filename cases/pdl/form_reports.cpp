#include "cases/pdl/form_reports.h"

#include "dialogs/message_boxes.h"
#include "runtime/numbers.h"

namespace orm {

FrmPdlPerizie::FrmPdlPerizie(RunState& stato, std::int16_t& numero)
    : FormInput(stato, "frmPDL_Perizie", "PERIZIE DI VARIANTE", "numero delle perizie"),
      numero_(numero) {
  SetContent(Column({Fields({ciNumeroPerizie}), Buttons({Command1})}));
  ciNumeroPerizie.SetValue(numero);
  Command1.onPress = [this] { Conferma(); };
}

void FrmPdlPerizie::Conferma() {
  if (ciNumeroPerizie.Value() > kPerizieMassime &&
      Rifiuta("LE PERIZIE DI UN PERIODO TARIFFARIO POSSONO ESSERE AL MASSIMO " +
              NumberText(kPerizieMassime) + "."))
    return;
  numero_ = CheckedInt16(ciNumeroPerizie.Value());
  Esci(Uscita::Conferma);
}

FrmPdlImpPer::FrmPdlImpPer(RunState& stato, PeriziaPdl& perizia,
                           const std::vector<PeriziaPdl>& altre)
    : FormInput(stato, "frmPDL_ImpPer", "IMPORTI DEI LAVORI IN PERIZIA", "importi") {
  auto& [suppletivi, espropri, variati] = importo;
  SetContent(
      Column({Group(Frame1, {Combo1}), Row({AmountFields({suppletivi, espropri, variati}), Image1}),
              Buttons({Command1})}));
  Combo1.SetIndex(perizia.TipoPerizia.empty() ? -1 : perizia.TipoPerizia[0] - '1');
  const Addendi addendi{stato.player.HeadingOf(*this).way, "LE ALTRE PERIZIE"};
  suppletivi.Chiedi(Chiesto(perizia, &PeriziaPdl::LavoriSuppletivi, altre, addendi));
  espropri.Chiedi(Chiesto(perizia, &PeriziaPdl::EsproPerizia, altre, addendi));
  variati.Chiedi(Chiesto(perizia, &PeriziaPdl::LavoriVariati, altre, addendi));
  Command1.onPress = [this, &perizia] {
    Conferma(importo);
    if (Confermato() && Combo1.Index() >= 0) perizia.TipoPerizia = Combo1.ShownText();
  };
}

}  // namespace orm
