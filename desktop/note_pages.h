// A technical note on A4 pages: text in Markdown, with drawings of the program in it.
#pragma once

#include <QPicture>
#include <QString>
#include <map>
#include <string>

namespace orm {

// A drawing as the program draws it, by the name under which the text asks for it:
// "![Le armature](picture:armature)".
using NoteDrawings = std::map<QString, QPicture>;

// The bytes of the PDF. A drawing that the text asks for and is not there is a RuntimeFailure.
std::string NotePdf(const QString& markdown, const NoteDrawings& drawings);

}  // namespace orm
