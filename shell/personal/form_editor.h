// frmPER_Editor: the programs outside that the program works with.
#pragma once

#include <array>

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

// Whether the programs that show reports and edit configuration files are where they are said to
// be.
bool EditorPresenti(RunState& stato, const Editors& editors);

class FrmPerEditor : public Form {
 public:
  // "O.K." writes EDITOR.PER once the first two programs are found.
  explicit FrmPerEditor(RunState& stato);

  Label Label4;
  TestoBox casellatesto1;
  Button cmdCerca1;
  TestoBox casellatesto2;
  Button cmdCerca2;
  TestoBox CasellaTesto3;
  Button cmdCerca3;
  Label Label3;
  Button cmdOK;

 private:
  Editors Taken() const;
  void Search(TestoBox& field);
  void TellMissing();
  void Confirm();
  RunState& stato_;
};

}  // namespace orm
