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
  FormRiprendibile(std::string nome, std::string titolo);

  Button cmdRIPRENDI;  // seen when there is something to take up

  virtual void Riprendi(const FormValues& valori) { valori.PutInto(*this); }
};

void MostraRiprendibile(RunState& stato, FormRiprendibile& form);

}  // namespace orm
