// frmGEN_Presentazione, the title window of a start, and frmGEN_Informa, the information window.
#pragma once

#include "dialogs/form.h"
#include "runtime/version.h"

namespace orm {

class FrmGenPresentazione : public Form {
 public:
  FrmGenPresentazione();
  bool ClosesOnAnyKey() const override { return true; }

  Image Image1{*this, "Image1", Image::Subject::Program};
  Label Label1{*this, "Label1", "PROCEDURA"};
  Label Label2{*this, "Label2", "ORM", Label::Style::Title};
  Label Label3{*this, "Label3", "2002", Label::Style::Title};
  Label Label4{*this, "Label4", "Per iniziare premere un tasto", Label::Style::Note};
};

class FrmGenInforma : public Form {
 public:
  FrmGenInforma();

  Image Image1{*this, "Image1", Image::Subject::Program};
  Label Label1{*this, "Label1", "ORM2002 - Onorari Rilievi Misure", Label::Style::Title};
  Label Label2{*this, "Label2", " VERSIONE : " + std::string(kVersione)};
  Label Label3{*this, "Label3",
               "LA BRENTOLI\nProcedura per le parcelle professionali di ingegneri e architetti"};
  Button cmdOK{*this, "cmdOK", "&O.K.", Button::Role::Default};
};

}  // namespace orm
