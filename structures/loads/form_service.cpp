#include "structures/loads/form_service.h"

namespace orm {
namespace {
constexpr const char* kKgMq = "Kg/mq";
}

FrmStruttureCarichiAccidentali::FrmStruttureCarichiAccidentali()
    : FrmCarichi("frmSTRUTTURE_CarichiAccidentali", "Sovraccarichi accidentali per edifici"),
      fraSovraccarichi(*this, "fraSovraccarichi", "Sovraccarichi  D.M. 16-01-1996 [Kg/mq]"),
      optCARICO(*this, "optCARICO", kVociSovraccarichi, gruppo, kKgMq),
      fraCoperture(*this, "fraCoperture", "Coperture"),
      optCoperture(*this, "optCoperture", kVociCoperture, gruppo, kKgMq),
      fraRimesse(*this, "fraRimesse", "Rimesse e parcheggi"),
      optRimesse(*this, "optRimesse", kVociRimesse, gruppo, kKgMq),
      fraAltri(*this, "fraAltri", "ALTRI SOVRACCARICHI AGGIUNTIVI"),
      cdAltriCarichi(*this, "cdAltriCarichi", "Altri carichi", kLimitiCarico),
      cdTotale(*this, "cdTotale", "TOTALE", {.most = 9999999.99, .decimals = 2, .unit = kKgMq}),
      OKButton(*this, "OKButton", "&O.K.", Button::Role::Default) {
  cdAltriCarichi.SetUnit(kKgMq);
  cdTotale.SetReadOnly(true);
  SetContent(Column({Group(fraSovraccarichi, {optCARICO.Contents()}),
                     Group(fraCoperture, {optCoperture.Contents()}),
                     Row({Group(fraRimesse, {optRimesse.Contents()}),
                          Group(fraAltri, {Fields({cdAltriCarichi, cdTotale})})}),
                     Buttons({OKButton})}));
  const auto aggiorna = [this] { cdTotale.SetValue(Totale()); };
  for (SceltaCarico* scelta : {&optCARICO, &optCoperture, &optRimesse})
    scelta->QuandoCambia(aggiorna);
  cdAltriCarichi.onChange = aggiorna;
  OKButton.onPress = [this] { Conferma(); };
}

double FrmStruttureCarichiAccidentali::Totale() const {
  return optCARICO.Carico() + optCoperture.Carico() + optRimesse.Carico() + cdAltriCarichi.Value();
}

FrmStruttureCarichiAccidentali& CarichiAccidentali(RunState& stato) {
  return stato.memoria.The<FrmStruttureCarichiAccidentali>();
}

}  // namespace orm
