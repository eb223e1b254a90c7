// A verification comes up fresh each time; a button takes up the data of its last use in this run
// of the program, so that a dialog closed by a slip costs nothing.
#pragma once

#include <string>

#include "dialogs/form.h"
#include "dialogs/form_values.h"
#include "shell/state/run_state.h"

namespace orm {

class FormRiprendibile : public Form {
 public:
  FormRiprendibile(std::string nome, std::string titolo, RunState& stato);
  void Presenta();

  Button cmdRIPRENDI{*this, "cmdRIPRENDI", "&RIPRENDI I DATI"};  // seen when there are such data

 protected:
  virtual void Riprendi(const FormValues& valori) { valori.PutInto(*this); }

  RunState& stato_;
};

}  // namespace orm
