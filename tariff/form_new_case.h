// frmGEN_NuovoCaso: change the stored note or begin a new one.
#pragma once

#include "dialogs/form.h"

namespace orm {

class FrmGenNuovoCaso : public Form {
 public:
  FrmGenNuovoCaso();

  std::string Risposta;  // "VARIAZIONE" or "NUOVA"; empty when the form was left by its window

  Button cmdVARIAZIONE, cmdNuova;
};

}  // namespace orm
