// The explanations of a report as it lies in a folder: the note is made anew from its data, and its
// lines are held against those of the report.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/explanation/explanation.h"
#include "runtime/folder.h"

namespace orm {

struct ReportSpiegato {
  enum class Esito {
    Spiegato,      // every figure of the note stands in the text with its explanation
    InParte,       // the text was changed by hand: the lines that are still those of the note
    DatiCambiati,  // the note that the data give today is another one: no explanations
    Inspiegato,    // the note tells nothing of its figures
    SenzaDati,     // no report of a note, or its data do not stand beside it
    NonRiuscito,   // the calculation fails, for `motivo`
  };
  Esito esito = Esito::SenzaDati;
  std::string motivo;
  std::map<std::size_t, Spiegazione> righe;  // by the line of the text shown, from 1
};

// Explains `mostrato`, in UTF-8 with '\n' at each line end, which is shown as the report `nome` of
// the folder. Its data, the criteria and the user's files are those of the folder; nothing is
// written.
ReportSpiegato SpiegaReport(const WorkFolder& folder, const std::string& nome,
                            std::string_view mostrato);

// For each line of `mostrato` (from 0) the line of `fatto` that it is, in order, or -1. Blanks do
// not count.
std::vector<int> AllineaRighe(const std::vector<std::string>& mostrato,
                              const std::vector<std::string>& fatto);

}  // namespace orm
