// frmPER_Editor: the programs outside that the program works with.
#pragma once

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

  Label Label4{*this, "Label4", "Fornire i percorsi completi dei programmi da utilizzare"};
  TestoBox casellatesto1{*this, "casellatesto1",
                         "PROGRAMMA per VISUALIZZAZIONE e STAMPA delle PARCELLE", Percorso()};
  Button cmdCerca1{*this, "cmdCerca(0)", "Cerca..."};
  TestoBox casellatesto2{*this, "casellatesto2",
                         "PROGRAMMA per EDITARE i file  ASCII di Configurazione", Percorso()};
  Button cmdCerca2{*this, "cmdCerca(1)", "Cerca..."};
  TestoBox CasellaTesto3{*this, "CasellaTesto3",
                         "PROGRAMMA per VISUALIZZARE i file PDF (Acrobat Reader)", Percorso()};
  Button cmdCerca3{*this, "cmdCerca(2)", "Cerca..."};
  Label Label3{*this, "Label3", "", Label::Style::Warning};
  Button cmdOK{*this, "cmdOK", "&O.K.", Button::Role::Default};

 private:
  static TextOptions Percorso() { return {.width = 60}; }
  void Cerca(TestoBox& campo);
  void DiciMancanti();
  void Conferma();

  RunState& stato_;
};

}  // namespace orm
