// Copies of a report in other formats. Each gives the bytes of the copy, so that they are written
// as safely as the report itself.
#pragma once

#include <QString>
#include <string>

#include "desktop/export/report_notes.h"

namespace orm {

enum class CopyKind { Pdf, Odt, Utf8 };
std::string CopyOf(CopyKind kind, const QString& text, const QString& title,
                   const ReportNotes& notes = {});

// A4 pages with text that can be selected. Needs a QGuiApplication. `title` names the document; its
// notes, if any, follow it, and their numbers stand beside its lines.
std::string PdfOf(const QString& text, const QString& title, const ReportNotes& notes = {});

// A text document of A4 pages in letters of fixed width. Needs a QGuiApplication.
std::string OdtOf(const QString& text);

// The text in UTF-8 with its line ends as line feeds.
std::string Utf8Of(const QString& text);

}  // namespace orm
