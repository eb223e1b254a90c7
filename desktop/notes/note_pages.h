// A technical note on A4 pages: text in Markdown, with drawings of the program in it.
#pragma once

#include <QString>
#include <string>

#include "desktop/notes/note_drawing.h"

namespace orm {

// The bytes of the PDF. A drawing that the text asks for and is not there is a RuntimeFailure.
std::string NotePdf(const QString& markdown, const NoteDrawings& drawings);

}  // namespace orm
