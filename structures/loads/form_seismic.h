// frmSTRUTTURE_CarichiSismici: the choices that give the seismic coefficients.
#pragma once

#include "structures/loads/load_form.h"
#include "structures/loads/loads.h"

namespace orm {

class FrmStruttureCarichiSismici : public FrmCarichi {
 public:
  FrmStruttureCarichiSismici();
  double Totale() const override { return 0; }  // the callers read the choices
  CoefficientiSismici Coefficienti() const;

  Frame fraProtezione;
  OptionGroup gruppoProtezione;
  OptionButton Option1, Option2, Option3;
  Frame fraRiduzione;
  OptionGroup gruppoRiduzione;
  OptionButton Option4, Option5, Option6;
  Button OKButton;
};

// The dialog of this run; before any choice ordinary works and dwellings.
FrmStruttureCarichiSismici& CarichiSismici(RunState& stato);
// Shows it and gives the focus back to `chiamante`.
void ChiediCarichiSismici(RunState& stato, Control& chiamante);

}  // namespace orm
