#include "shell/form_title.h"

namespace orm {

FrmGenPresentazione::FrmGenPresentazione() : Form("frmGEN_Presentazione", "ORM2002") {
  SetContent(Column({Image1, Label1, Row({Label2, Label3}), Label4}));
}

FrmGenInforma::FrmGenInforma()
    : Form("frmGEN_Informa", "ORM2002  - Onorari Rilievi  Misure  - INFORMAZIONI") {
  SetContent(Column({Row({Image1, Column({Label1, Label2, Label3})}), Buttons({cmdOK})}));
  cmdOK.onPress = [this] { Esci(Uscita::Conferma); };
}

}  // namespace orm
