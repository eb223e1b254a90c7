#include "dialogs/player.h"

namespace orm {

MessageBox FailureBox(const RuntimeFailure& failure) {
  return {kFailureTitle, failure.Text(), MessageBox::Icon::Critical, MessageBox::Buttons::Ok};
}

void Player::Show(Form& form) {
  form.Open();
  if (!form.IsOpen()) return;
  {
    const Drafts::Showing showing(drafts_, form);
    Present(form);
  }
  if (form.Confermato()) ++confirmations_;
}

}  // namespace orm
