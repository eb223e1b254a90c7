// frmGEN_Intestazione: client, object, documents and notes of a fee note.
#pragma once

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

class FrmGenIntestazione : public Form {
 public:
  // Shows the file's texts if it exists. "O.K." writes the file; leaving the form otherwise does
  // not.
  FrmGenIntestazione(RunState& stato, std::string nomeFile);

  TestoBox txtCommittente, txtIncarico, txtDocumenti, txtNote;
  Button Command1;
};

}  // namespace orm
