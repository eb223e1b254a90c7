// Choices: option buttons, check boxes and lists.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dialogs/control.h"

namespace orm {

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
  int Index() const { return index_; }       // -1 for none
  int PlaceOf(std::string_view item) const;  // -1 for none
  void SetIndex(int index);                  // out of range: none
  // The program's choice in the place of the person, told by its colour until anybody chooses, be
  // it the same item.
  void Propose(int index);
  bool IsAutomatic() const { return automatic_; }
  std::string ShownText() const override;
  std::string Enter(std::string_view text) override;

 protected:
  ListControl(Form& form, Kind kind, std::string name, std::string caption,
              std::vector<std::string> items);

 private:
  void Take(int index, bool automatic);

  std::vector<std::string> items_;
  int index_ = -1;
  bool automatic_ = false;
};

class ComboBox : public ListControl {
 public:
  ComboBox(Form& form, std::string name, std::string caption, std::vector<std::string> items = {});
};

class ListBox : public ListControl {
 public:
  ListBox(Form& form, std::string name, std::string caption, std::vector<std::string> items = {});
};

}  // namespace orm
