#include "dialogs/player.h"

namespace orm {

MessageBox FailureBox(const RuntimeFailure& failure) {
  return {kFailureTitle, failure.Text(), MessageBox::Icon::Critical, MessageBox::Buttons::Ok};
}

}  // namespace orm
