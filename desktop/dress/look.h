// Colours and marks that the palettes lack, for light and dark ones, and widths in characters.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>

class QWidget;

namespace orm {

bool IsDark(const QPalette& palette);
QColor WarningText(const QPalette& palette);    // on a window or a field
QColor WarningBase(const QPalette& palette);    // behind the text of a field
QColor AutomaticText(const QPalette& palette);  // a value that the program has written: blue
QColor NoteText(const QPalette& palette);       // less weight than the text, still easy to read
QColor StaleText(const QPalette& palette);      // a result that is not of the data as they stand

QColor AdviceText(const QPalette& palette);  // a value above what its caption advises: amber
QColor AdviceBase(const QPalette& palette);

// A round mark with "!": a warning is told by more than its colour.
QIcon WarningMark(const QPalette& palette, const QColor& colour);

// Room for `characters` letters or digits of usual width in the font of the widget.
int CharactersWide(const QWidget& widget, int characters);

}  // namespace orm
