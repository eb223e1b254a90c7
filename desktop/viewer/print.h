// Printing a report and looking at it before. Nothing of a printer is touched until one of these
// is called.
#pragma once

#include <QString>
#include <QWidget>

#include "desktop/export/report_notes.h"

namespace orm {

// What goes on paper.
struct PrintedReport {
  QString text, title;
  ReportNotes notes = {};
};

// Asks for the printer and the pages, and prints.
void PrintReport(const PrintedReport& report, QWidget* parent);

// Shows the pages as they will be printed, with a button that prints them.
void PreviewReport(const PrintedReport& report, QWidget* parent);

}  // namespace orm
