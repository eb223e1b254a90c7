// What a fee note is about, as its report says it: the name under which it is given to others.
#pragma once

#include <QString>

namespace orm {

// The first line of the subject of a note; empty for any other text and for a note without one.
QString SubjectOf(const QString& text);

// The title of a document: the subject, or the name of the file where there is none.
QString DocumentTitle(const QString& text, const QString& fileName);

// A name without ending for a copy of the report called `fileName`: "Strada Serre, tronco 2° -
// PPE". It is fit for a file on any system and not long; the case at its end keeps the notes of one
// work apart. Where there is no subject, the name of the report.
QString NameBySubject(const QString& text, const QString& fileName);

}  // namespace orm
