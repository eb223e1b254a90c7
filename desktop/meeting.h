// Where a program that runs can be met by one that has just been started: a word goes over, and the
// window of the first one comes forward.
#pragma once

#include <QLocalServer>
#include <QString>
#include <functional>

class QWidget;

namespace orm {

// The name of a meeting place of this person; `of` tells it from the others (a program, a folder).
QString MeetingPlace(const QString& of);

// The place of the program that works in this folder, whatever path leads there; empty when there
// is no such folder.
QString MeetingPlaceOfFolder(const QString& folder);

// True when a program at that place has taken the word.
bool HandOver(const QString& place, const QString& word = {});

// Shows a window that is minimised or behind others, with the dialog that stands before it, as far
// as the desktop lets it.
void BringForward(QWidget& window);

// Waits at a place for the words of others, as long as it lives.
class Meeting {
 public:
  Meeting(const QString& place, std::function<void(const QString& word)> met);

 private:
  QLocalServer server_;
};

}  // namespace orm
