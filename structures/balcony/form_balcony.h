// frmVER_BALCONE: check of a stone balcony.
#pragma once

#include "dialogs/lavagna.h"
#include "shell/state/run_state.h"
#include "structures/balcony/panel_inputs.h"
#include "structures/balcony/panel_stresses.h"
#include "structures/resumable_form.h"

namespace orm {

class FrmVerBalcone : public FormRiprendibile {
 public:
  explicit FrmVerBalcone(RunState& stato);

  IngressiBalcone ingressi;
  TensioniBalcone tensioni;
  Label Label_NOTA;
  Label lblStatica;  // where the customary formulas are on the unsafe side
  orm::Lavagna Lavagna;
  Button ComCalcola, ComEsci;

 private:
  void Azzera();
  void Calcola();
  bool Prosegue(Ribaltamento come);
  void Mostra(const DatiBalcone& dati, const RisultatiBalcone& risultati);
  void ConfrontaConStatica(const DatiBalcone& dati, const RisultatiBalcone& risultati);

  RunState& stato_;
};

void MostraVerBalcone(RunState& stato);

}  // namespace orm
