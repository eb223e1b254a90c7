// frmVER_SOLAIO_P: check of a single-span floor of NP beams and hollow tiles.
#pragma once

#include "shell/state/run_state.h"
#include "structures/resumable_form.h"
#include "structures/steel_beams/panel_inputs.h"
#include "structures/steel_beams/panel_results.h"
#include "structures/steel_beams/slab.h"

namespace orm {

class FrmVerSolaioP : public FormRiprendibile {
 public:
  explicit FrmVerSolaioP(RunState& stato);

  Frame fraPosizione;
  OptionGroup gruppoPosizione;
  OptionButton Option1, Option2;
  IngressiPutrelle ingressi;
  Frame fraCoefficienti;
  FloatBox cdMezzeria, cdIncastro;
  Label lblFreccia;  // a coefficient that makes the deflection too small
  RisultatiPutrelle risultati;
  Button ComCalcola, cmdSTAMPA, ComEsci;

 private:
  void Azzera();
  void Calcola();
  void Stampa();
  bool AltezzaAccettata(const DatiSolaioP& dati);

  RunState& stato_;
  // Of the check that is shown.
  DatiSolaioP dati_;
  RisultatiSolaioP verifica_;
};

void MostraSolaioP(RunState& stato);

}  // namespace orm
