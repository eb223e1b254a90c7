// A report as a text document of A4 pages in letters of fixed width.
#pragma once

#include <QStringList>
#include <string>

namespace orm {

// The bytes of the document; one paragraph for each line, its blanks kept, a heading for each title
// of a section.
std::string OdtOf(const QStringList& lines, const QString& title, const QString& fontFamily);

}  // namespace orm
