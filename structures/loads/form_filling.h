// frmSTRUTTURE_CarichiRiempimento: load of the filling between two steel beams, kg/mq.
#pragma once

#include "structures/loads/hollow_tiles.h"
#include "structures/loads/load_form.h"

namespace orm {

class FrmStruttureCarichiRiempimento : public FormCarichi {
 public:
  explicit FrmStruttureCarichiRiempimento(RunState& stato);
  // What the caller has at disposal, cm: the space between two beams and the height to fill.
  void Disponibile(double spazio, double altezza);
  double Totale() const override;

  OptionGroup gruppo;
  OptionButton Option1{*this, "Option1", "Cls normale", gruppo};
  OptionButton Option2{*this, "Option2", "Cls alleggerito", gruppo};
  OptionButton Option3{*this, "Option3", "Riempimento misto cls e tavelloni", gruppo};
  FloatBox cdCLS_1{*this, "cdCLS_1", "", FinoA(9999.99, "Kg/mc")};
  FloatBox cdCLS_2{*this, "cdCLS_2", "", FinoA(9999.99, "Kg/mc")};
  ComboBox cmbTavellone{*this, "cmbTavellone", "Tipo di Tavellone", NomiTavelloni()};
  Label lblTavelloni{*this, "lblTavelloni", kNotaTavelloni, Label::Style::Note};
  Frame fraMisure{*this, "fraMisure", "Riempimento"};
  FloatBox cdSpazio{*this, "cdSpazio", "Spazio fra le putrelle", FinoA(9999.99, "cm")};
  FloatBox cdAltezza{*this, "cdAltezza", "Altezza a disposizione", FinoA(9999.99, "cm")};
  FloatBox cdTotale{*this,
                    "cdTotale",
                    "TOTALE",
                    {.least = -9999999.99, .most = 9999999.99, .decimals = 2, .unit = "Kg/mq"}};

 private:
  void Aggiorna();
  void Accetta();

  RunState& stato_;
};

// The dialog of this run, for that space and height. Show it with ChiediCarico.
FrmStruttureCarichiRiempimento& CarichiRiempimento(RunState& stato, double spazio, double altezza);

}  // namespace orm
