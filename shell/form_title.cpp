#include "shell/form_title.h"

namespace orm {

FrmGenPresentazione::FrmGenPresentazione()
    : Form("frmGEN_Presentazione", "ORM2002"),
      Image1(*this, "Image1", Image::Subject::Program),
      Label1(*this, "Label1", "PROCEDURA"),
      Label2(*this, "Label2", "ORM", Label::Style::Title),
      Label3(*this, "Label3", "2002", Label::Style::Title),
      Label4(*this, "Label4", "Per iniziare premere un tasto", Label::Style::Note) {
  SetContent(Column({Image1, Label1, Row({Label2, Label3}), Label4}));
}

FrmGenInforma::FrmGenInforma()
    : Form("frmGEN_Informa", "ORM2002  - Onorari Rilievi  Misure  - INFORMAZIONI"),
      Image1(*this, "Image1", Image::Subject::Program),
      Label1(*this, "Label1", "ORM2002 - Onorari Rilievi Misure", Label::Style::Title),
      Label2(*this, "Label2", " VERSIONE : 3.02.02"),
      Label3(*this, "Label3",
             "LA BRENTOLI\nProcedura per le parcelle professionali di ingegneri e architetti"),
      cmdOK(*this, "cmdOK", "&O.K.", Button::Role::Default) {
  SetContent(Column({Row({Image1, Column({Label1, Label2, Label3})}), Buttons({cmdOK})}));
  cmdOK.onPress = [this] { Close(); };
}

}  // namespace orm
