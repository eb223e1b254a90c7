// frmGEN_Intestazione: client, object, documents and notes of a fee note.
#pragma once

#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "tariff/files/damaged_file.h"
#include "tariff/report.h"

namespace orm {

class FrmGenIntestazione : public Form {
 public:
  // Shows the file's texts if it exists. "O.K." writes the file; leaving the form otherwise does
  // not.
  // A damaged file is told, and the form opens blank.
  FrmGenIntestazione(RunState& stato, std::string nomeFile);

  // What the note is about, in a word: its object, or else the client.
  const std::string& Argomento() const {
    return txtIncarico.Text().empty() ? txtCommittente.Text() : txtIncarico.Text();
  }

  static inline const TextOptions kPiuRighe{
      .longest = 1000, .lines = 4, .width = kLarghezzaParcella, .columns = true};
  TestoBox txtCommittente{*this, "txtCommittente", "COMMITTENTE", kPiuRighe};
  TestoBox txtIncarico{*this, "txtIncarico", "OGGETTO", kPiuRighe};
  TestoBox txtDocumenti{*this, "txtDocumenti", "DOCUMENTI DI INCARICO", kPiuRighe};
  TestoBox txtNote{*this, "txtNote", "NOTE", kPiuRighe};
  Label lblColonne{*this, "lblColonne",
                   "72 colonne, come nella stampa: ogni riga si stampa come è scritta, INVIO va a "
                   "capo",
                   Label::Style::Note};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  FileDelForm file_;
};

}  // namespace orm
