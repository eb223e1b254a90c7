// frmGEN_NuovoCaso: change the stored note or begin a new one.
#pragma once

#include "dialogs/form.h"

namespace orm {

class FrmGenNuovoCaso : public Form {
 public:
  FrmGenNuovoCaso();

  // "VARIAZIONE" or "NUOVA"; left by its window, the form lets the note that is there stand.
  std::string Risposta = "VARIAZIONE";

  Button cmdVARIAZIONE, cmdNuova;
};

}  // namespace orm
