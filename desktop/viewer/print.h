// Printing a report and looking at it before. Nothing of a printer is touched until one of these
// is called.
#pragma once

#include <QString>
#include <QWidget>

namespace orm {

// Asks for the printer and the pages, and prints.
void PrintReport(const QString& text, const QString& title, QWidget* parent);

// Shows the pages as they will be printed, with a button that prints them.
void PreviewReport(const QString& text, const QString& title, QWidget* parent);

}  // namespace orm
