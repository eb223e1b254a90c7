// What a person pastes or types into a text that is saved: only what its file can hold.
#pragma once

#include <QString>
#include <cstddef>

class QTextDocument;
class QWidget;

namespace orm {

// The text without control characters, which no file of text may hold; empty when it would make the
// document too large for its file. Either is told beside `at`.
QString FitForPasting(QString text, const QTextDocument& document, std::size_t most, QWidget* at);

// True while another `more` characters fit into `most` bytes; else the person is told.
bool HasRoom(const QTextDocument& document, qsizetype more, std::size_t most, QWidget* at);

}  // namespace orm
