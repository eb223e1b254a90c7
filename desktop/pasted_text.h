// What a person pastes or types into a text that is saved: only what its file can hold.
#pragma once

#include <QString>

#include "desktop/text_room.h"

class QTextDocument;
class QWidget;

namespace orm {

// The text without control characters, which no file of text may hold; empty when it would make the
// document too large for its file, with too many lines, or has one that is too long. Each is told
// beside `at`.
QString FitForPasting(QString text, const QTextDocument& document, const TextRoom& room,
                      QWidget* at);

// True while another `more` characters fit into the file; else the person is told.
bool HasRoom(const QTextDocument& document, qsizetype more, const TextRoom& room, QWidget* at);

}  // namespace orm
