// What a person pastes or types into a text that is saved: only what its file can hold.
#pragma once

#include <QString>
#include <cstddef>

class QTextDocument;
class QWidget;

namespace orm {

// What a kind of file holds at most, bytes.
struct TextRoom {
  std::size_t whole = 0, line = 0;
  int lines = 0;
};

// The text without control characters, which no file of text may hold; empty when it would make the
// document too large for its file, with too many lines, or has one that is too long. Each is told
// beside `at`.
QString FitForPasting(QString text, const QTextDocument& document, const TextRoom& room,
                      QWidget* at);

// True while another `more` characters fit into the file; else the person is told.
bool HasRoom(const QTextDocument& document, qsizetype more, const TextRoom& room, QWidget* at);

}  // namespace orm
