// frmGEN_Conversione: the stored data of a case from Lire to Euro.
#pragma once

#include <deque>

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

class FrmGenConversione : public Form {
 public:
  explicit FrmGenConversione(RunState& stato);

  // Active where the case has data in Lire and the program knows them.
  std::deque<Button> cmdConverti = Pulsanti();
  Button cmdESCI{*this, "cmdESCI", "ESCI", Button::Role::Close};

 private:
  std::deque<Button> Pulsanti();
  void Converti(const char* codice);

  RunState& stato_;
};

}  // namespace orm
