// A verification comes up fresh each time. It is never confirmed, so that the data of its last use
// are always there to be taken up again (dialogs/form_values.h).
#pragma once

#include <string>
#include <utility>

#include "dialogs/form.h"
#include "dialogs/form_values.h"
#include "shell/state/run_state.h"

namespace orm {

class FormRiprendibile : public Form {
 public:
  FormRiprendibile(std::string nome, std::string titolo, RunState& stato)
      : Form(std::move(nome), std::move(titolo)), stato_(stato) {}
  void Presenta() { stato_.player.Show(*this); }

 protected:
  RunState& stato_;
};

}  // namespace orm
