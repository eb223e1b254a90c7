#include "structures/loads/form_service.h"

namespace orm {

FrmStruttureCarichiAccidentali::FrmStruttureCarichiAccidentali()
    : FormCarichi("frmSTRUTTURE_CarichiAccidentali", "Sovraccarichi accidentali per edifici") {
  SetContent(Column({Group(fraSovraccarichi, {optCARICO.Contents()}),
                     Group(fraCoperture, {optCoperture.Contents()}),
                     Row({Group(fraRimesse, {optRimesse.Contents()}),
                          Group(fraAltri, {Fields({cdAltriCarichi, cdTotale})})}),
                     Buttons({OKButton, cmdAzzera})}));
  cdTotale.SetReadOnly(true);
  const auto aggiorna = [this] { cdTotale.SetValue(Totale()); };
  for (SceltaCarico* scelta : {&optCARICO, &optCoperture, &optRimesse})
    scelta->QuandoCambia(aggiorna);
  cdAltriCarichi.onChange = aggiorna;
  cmdAzzera.onPress = [this] {
    gruppo.Choose(-1);
    cdAltriCarichi.SetValue(0);
  };
}

double FrmStruttureCarichiAccidentali::Totale() const {
  return optCARICO.Carico() + optCoperture.Carico() + optRimesse.Carico() + cdAltriCarichi.Value();
}

FrmStruttureCarichiAccidentali& CarichiAccidentali(RunState& stato) {
  return stato.memoria.The<FrmStruttureCarichiAccidentali>();
}

}  // namespace orm
