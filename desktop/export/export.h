// Copies of a report in other formats. Each gives the bytes of the copy, so that they are written
// as safely as the report itself.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "cases/fee_case.h"
#include "desktop/export/report_notes.h"

namespace orm {

enum class CopyKind { Pdf, Odt, Utf8, Json, Csv, PlainCsv };
std::string CopyOf(CopyKind kind, const QString& text, const QString& title,
                   const ReportNotes& notes = {});

// The note itself for other programs, which is what the last three kinds are: reckoned from its
// data in the folder, on the day that its report states (its text or bytes; empty: today). Data
// that are not there, or cannot be reckoned, are a RuntimeFailure.
bool IsOfTheNote(CopyKind kind);
std::string CopyOfNote(CopyKind kind, const WorkFolder& folder, const NotaDiCaso& note,
                       std::string_view report);

// A4 pages with text that can be selected, as PDF/A-1b, which archives take. Needs a
// QGuiApplication. `title` names the document; its notes, if any, follow it, and their numbers
// stand beside its lines.
std::string PdfOf(const QString& text, const QString& title, const ReportNotes& notes = {});

// A text document of A4 pages in letters of fixed width, its sections' titles as headings. Needs a
// QGuiApplication.
std::string OdtOf(const QString& text, const QString& title);

// The text in UTF-8 with its line ends as line feeds.
std::string Utf8Of(const QString& text);

}  // namespace orm
