// A report as a text document of A4 pages in letters of fixed width.
#pragma once

#include <QStringList>
#include <string>

namespace orm {

// The bytes of the document; one paragraph for each line, its blanks kept.
std::string OdtOf(const QStringList& lines, const QString& fontFamily);

}  // namespace orm
