#include "tariff/forms/form_new_case.h"

namespace orm {

FrmGenNuovoCaso::FrmGenNuovoCaso()
    : Form("frmGEN_NuovoCaso", " ORM 2002 :  INTRODUZIONE DATI "),
      cmdVARIAZIONE(*this, "cmdVARIAZIONE", "VARIAZIONE DATI", Button::Role::Default),
      cmdNuova(*this, "cmdNuova", "NUOVA PARCELLA") {
  SetContent(Row({cmdVARIAZIONE, cmdNuova}));
  cmdVARIAZIONE.onPress = [this] {
    Risposta = "VARIAZIONE";
    Close();
  };
  cmdNuova.onPress = [this] {
    Risposta = "NUOVA";
    Close();
  };
}

}  // namespace orm
