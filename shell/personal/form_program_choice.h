// frmGEN_LISTAFILE: the choice of an outside program.
//
// A platform without drives has one tree of folders: the form shows the path and hands the search
// to the platform's own file choice, which knows favourites, last places and hidden files.
#pragma once

#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

class FrmGenListaFile : public Form {
 public:
  FrmGenListaFile(Player& player, std::string inizio);

  TestoBox File1{*this, "File1", "Nome Programma", {.width = 50}};  // the chosen path
  Button cmdCerca{*this, "cmdCerca", "&Cerca in..."};
  Button cmdOK{*this, "cmdOK", "&O.K.", Button::Role::Default};
};

}  // namespace orm
