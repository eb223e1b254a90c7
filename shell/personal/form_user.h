// frmPER_Utente: the professional's data.
#pragma once

#include <deque>

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "tariff/files/damaged_file.h"

namespace orm {

class FrmPerUtente : public Form {
 public:
  // Shows UTENTE.DAG; "O.K." writes it.
  explicit FrmPerUtente(RunState& stato);

  std::deque<TestoBox> casellatesto = Caselle();  // casellatesto1 to casellatesto13
  Frame Frame1{*this, "Frame1"};
  OptionGroup professione;
  OptionButton Option1{*this, "Option1", "INGEGNERE", professione};
  OptionButton option2{*this, "option2", "ARCHITETTO", professione};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  std::deque<TestoBox> Caselle();
  void Conferma(const WorkFolder& folder);

  FileDelForm file_;
};

}  // namespace orm
