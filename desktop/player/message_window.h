// Message boxes with buttons of our own: their captions do not hang on the system's language.
#pragma once

#include <QMessageBox>
#include <memory>

#include "dialogs/player.h"

namespace orm {

std::unique_ptr<QMessageBox> BuildMessageWindow(const MessageBox& box, QWidget* parent);

// The button for an answer; nullptr when the box does not offer it.
QAbstractButton* ButtonOf(const QMessageBox& shown, Answer answer);

// What the person pressed; closing by the window button is the answer that changes nothing.
Answer AnswerGiven(const QMessageBox& shown, const MessageBox& box);

}  // namespace orm
