#include "dialogs/fittings.h"

#include <utility>

namespace orm {

Label::Label(Form& form, std::string name, std::string text, Style style)
    : Control(form, Kind::Label, std::move(name), {}), text_(std::move(text)), style_(style) {}

void Label::SetText(std::string text) {
  if (std::exchange(text_, std::move(text)) != text_) Changed();
}

void Label::SetStyle(Style style) {
  if (std::exchange(style_, style) != style) Refresh();
}

Frame::Frame(Form& form, std::string name, std::string caption)
    : Control(form, Kind::Frame, std::move(name), std::move(caption)) {}

Button::Button(Form& form, std::string name, std::string caption, Role role)
    : Control(form, Kind::Button, std::move(name), std::move(caption)), role_(role) {}

void Button::Press() {
  if (IsShown() && IsActive() && onPress) onPress();
}

std::string Button::ShownText() const {
  std::string text = Caption();
  std::erase(text, '&');
  return text;
}

Image::Image(Form& form, std::string name, Subject subject)
    : Control(form, Kind::Image, std::move(name), {}), subject_(subject) {}

}  // namespace orm
