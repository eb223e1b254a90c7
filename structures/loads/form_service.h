// frmSTRUTTURE_CarichiAccidentali: service load of a building, kg/mq.
#pragma once

#include "structures/loads/load_form.h"

namespace orm {

class FrmStruttureCarichiAccidentali : public FormCarichi {
 public:
  FrmStruttureCarichiAccidentali();
  double Totale() const override;  // the chosen load and the further one

  static constexpr const char* kUnita = "Kg/mq";
  OptionGroup gruppo;  // one choice over the three frames
  Frame fraSovraccarichi{*this, "fraSovraccarichi", "Sovraccarichi  D.M. 16-01-1996 [Kg/mq]"};
  SceltaCarico optCARICO{*this, "optCARICO", kVociSovraccarichi, gruppo, kUnita};
  Frame fraCoperture{*this, "fraCoperture", "Coperture"};
  SceltaCarico optCoperture{*this, "optCoperture", kVociCoperture, gruppo, kUnita};
  Frame fraRimesse{*this, "fraRimesse", "Rimesse e parcheggi"};
  SceltaCarico optRimesse{*this, "optRimesse", kVociRimesse, gruppo, kUnita};
  Frame fraAltri{*this, "fraAltri", "ALTRI SOVRACCARICHI AGGIUNTIVI"};
  FloatBox cdAltriCarichi{*this, "cdAltriCarichi", "Altri carichi", FinoA(999999.99, kUnita)};
  FloatBox cdTotale{*this, "cdTotale", "TOTALE", FinoA(9999999.99, kUnita)};
  Button cmdAzzera{*this, "cmdAzzera", "&Azzera"};
};

// The dialog of this run.
FrmStruttureCarichiAccidentali& CarichiAccidentali(RunState& stato);

}  // namespace orm
