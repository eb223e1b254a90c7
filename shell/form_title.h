// frmGEN_Presentazione, the title window of a start, and frmGEN_Informa, the information window.
#pragma once

#include "dialogs/form.h"

namespace orm {

class FrmGenPresentazione : public Form {
 public:
  FrmGenPresentazione();
  bool ClosesOnAnyKey() const override { return true; }

  Image Image1;
  Label Label1, Label2, Label3, Label4;
};

class FrmGenInforma : public Form {
 public:
  FrmGenInforma();

  Image Image1;
  Label Label1, Label2, Label3;
  Button cmdOK;
};

}  // namespace orm
