// frmPER_Utente: the professional's data.
#pragma once

#include <deque>

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

class FrmPerUtente : public Form {
 public:
  // Shows UTENTE.DAG; "O.K." writes it.
  explicit FrmPerUtente(RunState& stato);

  std::deque<TestoBox> casellatesto;  // casellatesto1 to casellatesto13
  Frame Frame1;
  OptionGroup professione;
  OptionButton Option1, option2;
  Button Command1;
};

}  // namespace orm
