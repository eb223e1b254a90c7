// frmSTRUTTURE_CarichiAccidentali: service load of a building, kg/mq.
#pragma once

#include <deque>

#include "structures/loads/load_form.h"

namespace orm {

class FrmStruttureCarichiAccidentali : public FrmCarichi {
 public:
  FrmStruttureCarichiAccidentali();
  double Totale() const override;  // the chosen load and the further one

  OptionGroup gruppo;  // one choice over the three frames
  Frame fraSovraccarichi;
  SceltaCarico optCARICO;
  Frame fraCoperture;
  SceltaCarico optCoperture;
  Frame fraRimesse;
  SceltaCarico optRimesse;
  Frame fraAltri;
  FloatBox cdAltriCarichi, cdTotale;
  Button OKButton;
};

// The dialog of this run.
FrmStruttureCarichiAccidentali& CarichiAccidentali(RunState& stato);

}  // namespace orm
