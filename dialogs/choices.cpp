#include "dialogs/choices.h"

#include <algorithm>
#include <utility>

#include "runtime/numbers.h"

namespace orm {

int OptionGroup::Chosen() const {
  for (std::size_t i = 0; i < options_.size(); ++i)
    if (options_[i]->Value()) return static_cast<int>(i);
  return -1;
}

void OptionGroup::Choose(int index) {
  for (std::size_t i = 0; i < options_.size(); ++i)
    if (static_cast<int>(i) != index) options_[i]->SetValue(false);
  if (index >= 0 && index < static_cast<int>(options_.size()))
    options_[static_cast<std::size_t>(index)]->SetValue(true);
}

OptionButton::OptionButton(Form& form, std::string name, std::string caption, OptionGroup& group)
    : Control(form, Kind::Option, std::move(name), std::move(caption)), group_(group) {
  group.options_.push_back(this);
}

void OptionButton::SetValue(bool value) {
  if (value_ == value) return;
  if (value)
    for (OptionButton* other : group_.options_)
      if (other != this) other->SetValue(false);
  value_ = value;
  Changed();
}

std::string OptionButton::Enter(std::string_view text) {
  if (text != "on") return "Un'opzione si lascia scegliendone un'altra.";
  SetValue(true);
  return {};
}

CheckBox::CheckBox(Form& form, std::string name, std::string caption)
    : Control(form, Kind::Check, std::move(name), std::move(caption)) {}

void CheckBox::SetValue(bool value) {
  if (std::exchange(value_, value) != value) Changed();
}

std::string CheckBox::Enter(std::string_view text) {
  if (text != "on" && text != "off") return "Si può solo scegliere (on) o lasciare (off).";
  SetValue(text == "on");
  return {};
}

ListControl::ListControl(Form& form, Kind kind, std::string name, std::string caption,
                         std::vector<std::string> items)
    : Control(form, kind, std::move(name), std::move(caption)), items_(std::move(items)) {}

void ListControl::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  index_ = -1;
  automatic_ = false;
  Refresh();
}

void ListControl::SetIndex(int index) { Take(index, false); }
void ListControl::Propose(int index) { Take(index, true); }

void ListControl::Take(int index, bool automatic) {
  if (index < 0 || index >= static_cast<int>(items_.size())) index = -1;
  const bool other = std::exchange(index_, index) != index;
  if (std::exchange(automatic_, automatic) != automatic || other) Changed();
}

std::string ListControl::ShownText() const {
  return index_ < 0 ? std::string() : items_[static_cast<std::size_t>(index_)];
}

int ListControl::PlaceOf(std::string_view item) const {
  const auto found = std::find(items_.begin(), items_.end(), item);
  return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

std::string ListControl::Enter(std::string_view text) {
  if (text.size() > 1 && text[0] == '#') {
    const auto index = ParseNumber(text.substr(1));
    if (!index || *index < 0 || *index >= static_cast<double>(items_.size()))
      return "La lista non ha questa voce.";
    SetIndex(static_cast<int>(*index));
    return {};
  }
  const int place = PlaceOf(text);
  if (place < 0) return "La lista non ha questa voce.";
  SetIndex(place);
  return {};
}

ComboBox::ComboBox(Form& form, std::string name, std::string caption,
                   std::vector<std::string> items)
    : ListControl(form, Kind::Combo, std::move(name), std::move(caption), std::move(items)) {}

ListBox::ListBox(Form& form, std::string name, std::string caption, std::vector<std::string> items)
    : ListControl(form, Kind::List, std::move(name), std::move(caption), std::move(items)) {}

}  // namespace orm
