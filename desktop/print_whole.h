// Printing that ends in paper or in a whole file, or says why not.
#pragma once

#include <QString>
#include <functional>

class QPrinter;
class QWidget;

namespace orm {

// Lets `paint` print, which is false when it failed. What goes to a file is made in memory, checked
// and only then takes the place of an older one. False when nothing was printed: the person has
// been told.
bool PrintWhole(QPrinter& printer, QWidget* parent, const std::function<bool()>& paint);

// A message with a file's name or reason in it, shown letter for letter.
void WarnPlainly(QWidget* parent, const QString& text);

}  // namespace orm
