// Messages and questions of the viewer and the desk, with buttons that carry their own words.
#pragma once

#include <QMessageBox>
#include <QStringList>

namespace orm {

inline constexpr const char* kViewerName = "ORM2002 Visore";
inline constexpr int kStatusMilliseconds = 6000;  // of a word in the status bar

// The text with places to fold in words that are longer than any of the language: of names of files
// and folders, which would make their window wider than the screen.
QString Foldable(QString text);

// Shows a message with one button. `program` is the title.
void Tell(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& detail = {},
          const char* program = kViewerName);

// Shows a question and returns the index of the button pressed. Esc and the window's button give
// the last one. Texts are shown letter for letter.
int Choose(QWidget* parent, const QString& text, const QString& detail, const QStringList& buttons,
           int byDefault = 0, const char* program = kViewerName);

}  // namespace orm
