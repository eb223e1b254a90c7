// What a form has around its fields: texts, frames, buttons and small pictures. Nothing is entered
// into these.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "dialogs/control.h"

namespace orm {

// A text that the person cannot change: a note, a result, a title.
class Label : public Control {
 public:
  enum class Style { Plain, Note, Strong, Warning, Title };
  Label(Form& form, std::string name, std::string text = {}, Style style = Style::Plain);
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  Style GetStyle() const { return style_; }
  void SetStyle(Style style);
  bool TakesFocus() const override { return false; }
  std::string ShownText() const override { return text_; }

 private:
  std::string text_;
  Style style_;
};

// A group of controls with or without a caption, shown, hidden and disabled as one. Which controls
// stand in it is told by the layout.
class Frame : public Control {
 public:
  Frame(Form& form, std::string name, std::string caption = {});
  bool TakesFocus() const override { return false; }
  std::string ShownText() const override { return Caption(); }
};

class Button : public Control {
 public:
  enum class Role {
    Plain,
    Default,  // pressed by Enter wherever the focus is; one a form
    Close     // ends the form, or what is under way in it: no field has to hold a value
  };
  Button(Form& form, std::string name, std::string caption, Role role = Role::Plain);
  Role GetRole() const { return role_; }
  // Characters whose keys press the button wherever the focus is; "\x1b" is Escape.
  void SetKeys(std::string keys) { keys_ = std::move(keys); }
  const std::string& Keys() const { return keys_; }
  void Press();                            // as a person: nothing happens while hidden or disabled
  std::string ShownText() const override;  // the caption without its mark
  std::function<void()> onPress;

 private:
  Role role_;
  std::string keys_;
};

// A small picture known by its subject.
class Image : public Control {
 public:
  enum class Subject { Euro, Program };
  Image(Form& form, std::string name, Subject subject);
  Subject GetSubject() const { return subject_; }
  bool TakesFocus() const override { return false; }
  std::string ShownText() const override { return {}; }

 private:
  Subject subject_;
};

}  // namespace orm
