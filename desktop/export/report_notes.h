// Notes under a report: a small number beside a line, and its text on pages behind the report.
#pragma once

#include <QString>
#include <map>

#include "runtime/explanation/explanation.h"

namespace orm {

struct ReportNotes {
  std::map<int, int> numbers;  // of the note of a line; lines from 0, as VisibleLines gives them
  QString text;                // of all notes; empty where there are none
};

// The explanations of a report as its notes, in the order of its lines. The lines of `righe` count
// from 1.
ReportNotes NotesOf(const std::map<std::size_t, Spiegazione>& righe);

}  // namespace orm
