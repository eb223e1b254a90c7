#include "batch/batch_player.h"

#include <unistd.h>

namespace orm {

Answer BatchPlayer::Ask(const MessageBox& box) {
  const std::string text = box.text + "\n";
  // Nobody to tell when standard error is closed.
  if (::write(STDERR_FILENO, text.data(), text.size()) < 0) return Answer::Cancel;
  switch (box.buttons) {
    case MessageBox::Buttons::Ok:
      return Answer::Ok;
    case MessageBox::Buttons::YesNo:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

}  // namespace orm
