// Controls of a form. A form builds its controls under their own names, with caption, limits and
// event rules; how they look is the affair of the player that shows the form.
//
// A control holds what it shows. What a person does reaches it through the Type.../Choose...
// routines of each kind, which admit what that kind admits; what the logic does goes through the
// setters. Both tell the player's view, if the form is on a screen, and both raise `onChange`.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace orm {

class Form;
class Frame;

class Control {
 public:
  enum class Kind {
    Label,
    TextBox,
    NumberBox,
    BarsBox,
    Option,
    Check,
    Combo,
    List,
    Date,
    Slider,
    Frame,
    Button,
    Image,
    Drawing,
    RichText
  };

  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Kind GetKind() const { return kind_; }
  const std::string& Name() const { return name_; }
  Form& Owner() const { return form_; }

  // The label that belongs to the control: before a field, on a button or beside a mark. In the
  // caption of a button '&' marks the key.
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  // What stands behind a field: "%", "[cm.]", "max 30%"; `aside`: with less weight.
  const std::string& Unit() const { return unit_; }
  bool UnitAside() const { return unitAside_; }
  void SetUnit(std::string unit, bool aside = false);
  const std::string& Hint() const { return hint_; }  // help for the field, shown when asked for
  void SetHint(std::string hint);

  void SetVisible(bool visible);
  void SetEnabled(bool enabled);
  // What the control itself was told, and what counts: with the frames around it.
  bool OwnVisible() const { return visible_; }
  bool OwnEnabled() const { return enabled_; }
  bool IsShown() const;
  bool IsActive() const;
  // A control that tells how to use the form, or only chooses what it shows, is not printed with
  // what the form holds; of a frame its caption is not.
  bool OnPaper() const { return onPaper_; }
  void KeepOffPaper() { onPaper_ = false; }

  Frame* Parent() const { return parent_; }
  void SetParent(Frame* parent) { parent_ = parent; }

  virtual bool TakesFocus() const { return true; }
  // The text that a person reads in the control.
  virtual std::string ShownText() const = 0;
  // Does what a person does who enters `text` as a script writes it: types a number or a text,
  // chooses a list item by its text or "#index", sets "on" or "off". Returns an empty text, or in
  // Italian why the control does not take it: one that is no entry takes nothing.
  virtual std::string Enter(std::string_view text);

  std::function<void()> onChange;  // the value changed
  std::function<void()> onLeave;   // the focus went elsewhere

 protected:
  Control(Form& form, Kind kind, std::string name, std::string caption);
  void Changed();  // value changed: view and onChange
  void Refresh();  // looks changed: view alone

 private:
  Form& form_;
  Kind kind_;
  std::string name_, caption_, unit_, hint_;
  bool visible_ = true;
  bool enabled_ = true;
  bool onPaper_ = true;
  bool unitAside_ = false;
  Frame* parent_ = nullptr;
};

}  // namespace orm
