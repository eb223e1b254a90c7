// frmSTRUTTURE_CarichiRiempimento: load of the filling between two steel beams, kg/mq.
#pragma once

#include <array>

#include "structures/loads/load_form.h"

namespace orm {

class FrmStruttureCarichiRiempimento : public FrmCarichi {
 public:
  explicit FrmStruttureCarichiRiempimento(RunState& stato);
  // What the caller has at disposal, cm: the space between two beams and the height to fill.
  void Disponibile(double spazio, double altezza);
  double Totale() const override;

  OptionGroup gruppo;
  OptionButton Option1, Option2, Option3;
  FloatBox cdCLS_1, cdCLS_2;
  ComboBox cmbTavellone;
  Label lblTavelloni;
  Frame fraMisure;
  FloatBox cdSpazio, cdAltezza, cdTotale;
  Button OKButton;

 private:
  void Arrange();
  void Aggiorna();
  void Accetta();

  RunState& stato_;
};

// The dialog of this run, for that space and height. Show it with ChiediCarico.
FrmStruttureCarichiRiempimento& CarichiRiempimento(RunState& stato, double spazio, double altezza);

}  // namespace orm
