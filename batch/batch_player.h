// The player of the program without a screen: message boxes go to standard error.
#pragma once

#include "shell/quiet_player.h"

namespace orm {

class BatchPlayer : public QuietPlayer {
 public:
  using QuietPlayer::QuietPlayer;
  Answer Ask(const MessageBox& box) override;
};

}  // namespace orm
