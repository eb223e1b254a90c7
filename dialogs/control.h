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
#include <vector>

#include "dialogs/number_entry.h"
#include "runtime/dates.h"

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
  // What stands behind a field: "%", "[cm.]", "max 30%".
  const std::string& Unit() const { return unit_; }
  void SetUnit(std::string unit);
  const std::string& Hint() const { return hint_; }  // help for the field, shown when asked for
  void SetHint(std::string hint);

  void SetVisible(bool visible);
  void SetEnabled(bool enabled);
  // What the control itself was told, and what counts: with the frames around it.
  bool OwnVisible() const { return visible_; }
  bool OwnEnabled() const { return enabled_; }
  bool IsShown() const;
  bool IsActive() const;

  Frame* Parent() const { return parent_; }
  void SetParent(Frame* parent) { parent_ = parent; }

  virtual bool TakesFocus() const { return true; }
  // The text that a person reads in the control.
  virtual std::string ShownText() const = 0;
  // Does what a person does who enters `text` as a script writes it: types a number or a text,
  // chooses a list item by its text or "#index", sets "on" or "off". Returns an empty text, or in
  // Italian why the control does not take it.
  virtual std::string Enter(std::string_view text) = 0;

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
  Frame* parent_ = nullptr;
};

// A text that the person cannot change: a note, a result, a title.
class Label : public Control {
 public:
  enum class Style { Plain, Note, Warning, Title };
  Label(Form& form, std::string name, std::string text = {}, Style style = Style::Plain);
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  Style GetStyle() const { return style_; }
  void SetStyle(Style style);
  bool TakesFocus() const override { return false; }
  std::string ShownText() const override { return text_; }
  std::string Enter(std::string_view) override;

 private:
  std::string text_;
  Style style_;
};

// TestoBox: text on one line or several. Takes only characters that the files can hold.
struct TextOptions {
  int longest = 250;  // characters
  int lines = 1;      // above 1 the text may hold line ends
  bool readOnly = false;
  int width = 30;        // usual width in characters
  bool columns = false;  // in letters of one width, so that columns stand below each other
  std::string unit = {};
  std::string hint = {};
  bool figure = false;  // a result in figures, which stands at the right as numbers do
};

class TestoBox : public Control {
 public:
  TestoBox(Form& form, std::string name, std::string caption, TextOptions options = {});
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  const TextOptions& Options() const { return options_; }
  // Admits a whole new text: empty when it is taken, else the Italian reason.
  std::string Type(std::string_view text);
  // Why the text cannot be taken, without taking it.
  std::string Objection(std::string_view text) const;
  bool TakesFocus() const override { return !options_.readOnly; }
  std::string ShownText() const override { return text_; }
  std::string Enter(std::string_view text) override;

 private:
  TextOptions options_;
  std::string text_;
};

// A number with decimals (FloatBox) or whole (InterBox). Shows Italian form with thousands points.
class NumberBox : public Control {
 public:
  double Value() const { return value_; }
  // The logic may set any value: a file can hold what the limits would not let a person type.
  void SetValue(double value);
  const NumberLimits& Limits() const { return limits_; }
  bool ReadOnly() const { return readOnly_; }
  void SetReadOnly(bool readOnly);
  // A result may come as text by a pattern of its own; it stands until the next value.
  void SetShown(std::string text);
  // A value that warns (a stress beyond its limit).
  bool Warns() const { return warns_; }
  void SetWarning(bool warns);
  // A value that the program writes by itself when another one changes; told by its colour.
  bool IsAutomatic() const { return automatic_; }
  void SetAutomatic() { automatic_ = true; }
  // What a person has typed so far: taken when it is a number within the limits, and the draft
  // text is kept as it is until the focus goes. Empty when taken, else the Italian reason.
  std::string Type(std::string_view draft);
  bool TakesFocus() const override { return !readOnly_; }
  std::string ShownText() const override;
  std::string Enter(std::string_view text) override;

 protected:
  NumberBox(Form& form, std::string name, std::string caption, NumberLimits limits);

 private:
  NumberLimits limits_;
  double value_ = 0;
  std::string shown_;
  bool readOnly_ = false;
  bool warns_ = false;
  bool automatic_ = false;
};

class FloatBox : public NumberBox {
 public:
  FloatBox(Form& form, std::string name, std::string caption, NumberLimits limits = {});
};

class InterBox : public NumberBox {
 public:
  InterBox(Form& form, std::string name, std::string caption, NumberLimits limits = {});
};

// FerriBox: bars as "2D16+2D12" with their area in cmq, shown beside.
class FerriBox : public Control {
 public:
  FerriBox(Form& form, std::string name, std::string caption);
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  double Area() const;  // cmq; 0 for a text that is not of the form
  // A draft is admitted as long as it has the characters of the form; while it is not of the form
  // its area is 0.
  std::string Type(std::string_view text);
  std::string Objection(std::string_view text) const;  // why a draft is not admitted
  static const char* Writing();                        // in Italian: how bars are written
  std::string ShownText() const override { return text_; }
  std::string Enter(std::string_view text) override;

 private:
  std::string text_;
};

// Option buttons of one group exclude each other.
class OptionButton;
class OptionGroup {
 public:
  // Index of the chosen option in the order of building, -1 for none.
  int Chosen() const;
  void Choose(int index);
  const std::vector<OptionButton*>& Options() const { return options_; }

 private:
  friend class OptionButton;
  std::vector<OptionButton*> options_;
};

class OptionButton : public Control {
 public:
  OptionButton(Form& form, std::string name, std::string caption, OptionGroup& group);
  bool Value() const { return value_; }
  void SetValue(bool value);  // true clears the others of the group
  OptionGroup& Group() const { return group_; }
  std::string ShownText() const override { return value_ ? "on" : "off"; }
  std::string Enter(std::string_view text) override;

 private:
  OptionGroup& group_;
  bool value_ = false;
};

class CheckBox : public Control {
 public:
  CheckBox(Form& form, std::string name, std::string caption);
  bool Value() const { return value_; }
  void SetValue(bool value);
  std::string ShownText() const override { return value_ ? "on" : "off"; }
  std::string Enter(std::string_view text) override;

 private:
  bool value_ = false;
};

// A fixed list with one chosen item: folded (ComboBox) or open (ListBox).
class ListControl : public Control {
 public:
  const std::vector<std::string>& Items() const { return items_; }
  // Replaces the items; nothing is chosen afterwards.
  void SetItems(std::vector<std::string> items);
  int Index() const { return index_; }  // -1 for none
  void SetIndex(int index);             // out of range: none
  std::string ShownText() const override;
  std::string Enter(std::string_view text) override;

 protected:
  ListControl(Form& form, Kind kind, std::string name, std::string caption,
              std::vector<std::string> items);

 private:
  std::vector<std::string> items_;
  int index_ = -1;
};

class ComboBox : public ListControl {
 public:
  ComboBox(Form& form, std::string name, std::string caption, std::vector<std::string> items = {});
};

class ListBox : public ListControl {
 public:
  ListBox(Form& form, std::string name, std::string caption, std::vector<std::string> items = {});
};

// A day, typed or picked from a calendar.
class DatePicker : public Control {
 public:
  DatePicker(Form& form, std::string name, std::string caption, orm::Date first = {1900, 1, 1},
             orm::Date last = {2099, 12, 31});
  const orm::Date& Value() const { return value_; }
  void SetValue(const orm::Date& value);  // a day out of range moves to the nearest allowed one
  const orm::Date& First() const { return first_; }
  const orm::Date& Last() const { return last_; }
  std::string ShownText() const override { return ShortDate(value_); }
  std::string Enter(std::string_view text) override;

 private:
  orm::Date first_, last_, value_;
};

// A value between two ends in `steps` equal steps.
class Slider : public Control {
 public:
  Slider(Form& form, std::string name, std::string caption, double least, double most,
         int steps = 100);
  double Value() const;
  void SetValue(double value);  // to the nearest step
  int Position() const { return position_; }
  void SetPosition(int position);
  double Least() const { return least_; }
  double Most() const { return most_; }
  int Steps() const { return steps_; }
  std::string ShownText() const override;
  std::string Enter(std::string_view text) override;

 private:
  double least_, most_;
  int steps_;
  int position_ = 0;
};

// A group of controls with or without a caption, shown, hidden and disabled as one. Which controls
// stand in it is told by the layout.
class Frame : public Control {
 public:
  Frame(Form& form, std::string name, std::string caption = {});
  bool TakesFocus() const override { return false; }
  std::string ShownText() const override { return Caption(); }
  std::string Enter(std::string_view) override;
};

class Button : public Control {
 public:
  enum class Role {
    Plain,
    Default,  // pressed by Enter wherever the focus is; one a form
    Close     // ends the form, stands with the default button
  };
  Button(Form& form, std::string name, std::string caption, Role role = Role::Plain);
  Role GetRole() const { return role_; }
  void Press();                            // as a person: nothing happens while hidden or disabled
  std::string ShownText() const override;  // the caption without its mark
  std::string Enter(std::string_view) override;
  std::function<void()> onPress;

 private:
  Role role_;
};

// A small picture known by its subject.
class Image : public Control {
 public:
  enum class Subject { Euro, Program };
  Image(Form& form, std::string name, Subject subject);
  Subject GetSubject() const { return subject_; }
  bool TakesFocus() const override { return false; }
  std::string ShownText() const override { return {}; }
  std::string Enter(std::string_view) override;

 private:
  Subject subject_;
};

}  // namespace orm
