#include "structures/loads/form_service.h"

namespace orm {

FrmStruttureCarichiAccidentali::FrmStruttureCarichiAccidentali()
    : FormCarichi("frmSTRUTTURE_CarichiAccidentali", "Sovraccarichi accidentali per edifici") {
  SetContent(Column({Group(fraSovraccarichi, {optCARICO.Contents()}),
                     Group(fraCoperture, {optCoperture.Contents()}),
                     Row({Group(fraRimesse, {optRimesse.Contents()}),
                          Group(fraAltri, {Fields({cdAltriCarichi, cdTotale})})}),
                     Buttons({OKButton})}));
  cdTotale.SetReadOnly(true);
  const auto aggiorna = [this] { cdTotale.SetValue(Totale()); };
  for (SceltaCarico* scelta : {&optCARICO, &optCoperture, &optRimesse})
    scelta->QuandoCambia(aggiorna);
  cdAltriCarichi.onChange = aggiorna;
}

double FrmStruttureCarichiAccidentali::Totale() const {
  return optCARICO.Carico() + optCoperture.Carico() + optRimesse.Carico() + cdAltriCarichi.Value();
}

FrmStruttureCarichiAccidentali& CarichiAccidentali(RunState& stato) {
  return stato.memoria.The<FrmStruttureCarichiAccidentali>();
}

}  // namespace orm
