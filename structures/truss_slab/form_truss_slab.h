// frmVER_SOLAIO_TRALIC: design of a floor of one span, of truss joists and hollow blocks.
#pragma once

#include "shell/state/run_state.h"
#include "structures/resumable_form.h"
#include "structures/truss_slab/panel_inputs.h"
#include "structures/truss_slab/panel_views.h"

namespace orm {

class FrmVerSolaioTralic : public FormRiprendibile {
 public:
  explicit FrmVerSolaioTralic(RunState& stato);
  void Riprendi(const FormValues& valori) override;

  IngressiSolaio ingressi;
  VisteSolaio viste;
  Button comCalcola, comSTAMPA, ComEsci;

 private:
  void Calcola();
  void Stampa();
  void Azzera();

  RunState& stato_;
  // Of the design that is shown.
  DatiSolaioT dati_;
  RisultatiSolaioT risultati_;
};

void MostraSolaioTraliccio(RunState& stato);

}  // namespace orm
