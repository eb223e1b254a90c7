// frmGEN_Conversione: the stored data of a case from Lire to Euro.
#pragma once

#include <array>

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

class FrmGenConversione : public Form {
 public:
  explicit FrmGenConversione(RunState& stato);

  // Active where the case has data in Lire and the program knows them.
  std::array<Button, 15> cmdConverti;
  Button cmdESCI;

 private:
  void Convert(RunState& stato, std::size_t i);
};

}  // namespace orm
