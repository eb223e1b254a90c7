#include "batch/batch_player.h"

#include <unistd.h>

namespace orm {

Answer BatchPlayer::Ask(const MessageBox& box) {
  const std::string text = box.text + "\n";
  // Nobody to tell when standard error is closed.
  if (::write(STDERR_FILENO, text.data(), text.size()) < 0) return Answer::Cancel;
  return QuietPlayer::Ask(box);
}

}  // namespace orm
