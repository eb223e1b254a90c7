#include "dialogs/control.h"

#include <utility>

#include "dialogs/form.h"

namespace orm {

Control::Control(Form& form, Kind kind, std::string name, std::string caption)
    : form_(form), kind_(kind), name_(std::move(name)), caption_(std::move(caption)) {
  form.controls_.push_back(this);
}

void Control::Refresh() {
  if (FormView* view = form_.View()) view->ControlChanged(*this);
}

void Control::Changed() {
  Refresh();
  if (onChange) onChange();
  if (TakesFocus()) form_.OnDataChanged(*this);
}

void Control::SetCaption(std::string caption) {
  if (std::exchange(caption_, std::move(caption)) != caption_) Refresh();
}

void Control::SetUnit(std::string unit, bool aside) {
  const bool same = unit == unit_ && aside == unitAside_;
  unit_ = std::move(unit);
  unitAside_ = aside;
  if (!same) Refresh();
}

void Control::SetHint(std::string hint) {
  if (std::exchange(hint_, std::move(hint)) != hint_) Refresh();
}

void Control::SetVisible(bool visible) {
  if (std::exchange(visible_, visible) != visible) Refresh();
}

void Control::SetEnabled(bool enabled) {
  if (std::exchange(enabled_, enabled) != enabled) Refresh();
}

bool Control::IsShown() const { return visible_ && (parent_ == nullptr || parent_->IsShown()); }
bool Control::IsActive() const { return enabled_ && (parent_ == nullptr || parent_->IsActive()); }

std::string Control::Enter(std::string_view) { return "Non è un campo da riempire."; }

}  // namespace orm
