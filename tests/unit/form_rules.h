// The rules that every form holds, checked on the form itself, without a screen.
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "dialogs/form.h"

namespace orm {

class FormRules {
 public:
  // What the form breaks, each with the control; empty when all holds.
  static std::vector<std::string> Broken(const Form& form) { return FormRules(form).broken_; }

 private:
  explicit FormRules(const Form& form) : form_(form) {
    Walk(form.Content());
    if (ControlsOf(form.Content()) != form.Controls())
      Break(form.Name(), "l'ordine di tabulazione non è quello di lettura, o manca un controllo");
    CheckNames();
    CheckKeys();
    for (const Control* control : form.Controls())
      if (IsEntry(*control) && !IsLabelled(*control)) Break(control->Name(), "senza etichetta");
  }

  void Break(const std::string& name, const std::string& why) {
    broken_.push_back(form_.Name() + "." + name + " : " + why);
  }

  void Walk(const Layout& layout) {
    for (const Layout& part : layout.children) {
      if (part.control != nullptr) around_[part.control] = &layout;
      Walk(part);
    }
  }

  void CheckNames() {
    std::set<std::string> names;
    for (const Control* control : form_.Controls()) {
      if (control->Name().empty()) Break("?", "senza nome");
      if (!names.insert(control->Name()).second) Break(control->Name(), "nome doppio");
    }
  }

  void CheckKeys() {
    std::map<char, std::string> keys;
    int defaults = 0;
    for (const Control* control : form_.Controls()) {
      const auto* button = dynamic_cast<const Button*>(control);
      if (button == nullptr) continue;
      defaults += button->GetRole() == Button::Role::Default && button->IsShown() ? 1 : 0;
      const auto mark = button->Caption().find('&');
      if (mark == std::string::npos || !button->IsShown()) continue;
      const char key = button->Caption().substr(mark + 1, 1)[0] & ~0x20;
      if (!keys.emplace(key, button->Name()).second) Break(button->Name(), "tasto già usato");
    }
    if (defaults > 1) Break(form_.Name(), "più pulsanti predefiniti");
  }

  static bool IsEntry(const Control& control) {
    using Kind = Control::Kind;
    const Kind kind = control.GetKind();
    return kind == Kind::TextBox || kind == Kind::NumberBox || kind == Kind::BarsBox ||
           kind == Kind::Combo || kind == Kind::List || kind == Kind::Date || kind == Kind::Slider;
  }

  // Its own caption, that of the frame around it, or a text or a mark beside it in the same row.
  bool IsLabelled(const Control& control) {
    if (!control.Caption().empty()) return true;
    for (const Frame* frame = control.Parent(); frame != nullptr; frame = frame->Parent())
      if (!frame->Caption().empty()) return true;
    const Layout* around = around_[&control];
    if (around == nullptr || around->kind != Layout::Kind::Row) return false;
    return std::any_of(around->children.begin(), around->children.end(), [&](const Layout& part) {
      if (part.control == nullptr || part.control == &control) return false;
      const auto kind = part.control->GetKind();
      return kind == Control::Kind::Label || kind == Control::Kind::Option ||
             kind == Control::Kind::Check;
    });
  }

  const Form& form_;
  std::map<const Control*, const Layout*> around_;
  std::vector<std::string> broken_;
};

}  // namespace orm
