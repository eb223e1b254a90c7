#include "dialogs/player.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "dialogs/form.h"

namespace orm {

std::string OnOneLine(const std::string& text) {
  std::string line;
  for (const char c : text) {
    const bool blank = c == ' ' || c == '\r' || c == '\n';
    if (!blank)
      line += c;
    else if (!line.empty() && line.back() != ' ')
      line += ' ';
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

PartOfWay::PartOfWay(Place& place, std::vector<std::string> parts) : place_(place), before_(place) {
  std::ranges::copy_if(parts, std::back_inserter(place.way),
                       [](const std::string& part) { return !part.empty(); });
}

Heading Player::HeadingOf(const Form& form) const {
  if (place.note.empty()) return {};
  std::string way;
  for (const std::string& part : place.way) way += part + kHeadingMark;
  return {place.note, OnOneLine(place.subject), way + form.Step()};
}

MessageBox FailureBox(const RuntimeFailure& failure) {
  return {kFailureTitle, failure.Text(), MessageBox::Icon::Critical, MessageBox::Buttons::Ok};
}

void Player::Show(Form& form) {
  form.Open(HeadingOf(form));
  if (!form.IsOpen()) return;
  {
    const Drafts::Showing showing(drafts_, form);
    Present(form);
  }
  if (form.Confermato()) ++confirmations_;
}

}  // namespace orm
