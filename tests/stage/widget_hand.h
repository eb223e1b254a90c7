// The hand of a script on a form that is on the screen: real keys and clicks on the widgets.
#pragma once

#include <string>

#include "desktop/player/form_dialog.h"
#include "script/hand.h"
#include "tests/stage/desktop_stage.h"

class QAbstractButton;
class QAbstractItemView;
class QComboBox;
class QPushButton;

namespace orm {

// Keys typed as a person does, letter by letter, over what the field holds.
void TypeKeys(QWidget* widget, const QString& text);
void Retype(QWidget* widget, const QString& text);

class WidgetHand : public FormHand {
 public:
  WidgetHand(FormDialog& dialog, DesktopStageOptions options);

  void Look();  // at the form as a whole, for faults

  std::string Set(Control& control, std::string_view text) override;
  std::string Press(Button& button) override;
  void CloseByWindow() override;
  std::string Shown(Control& control) override;
  bool IsVisible(Control& control) override;
  bool IsEnabled(Control& control) override;
  std::string Title() override;
  std::string Heading() override;
  void Picture(const std::string& name) override;

 protected:
  // The single movements: how the focus comes to a widget, how a mark is set or taken, how the item
  // of a list is chosen, how a button is pressed.
  virtual void Reach(QWidget& widget);
  virtual void Turn(QAbstractButton& mark);
  virtual void Open(QComboBox& combo);
  virtual void ChooseRow(QAbstractItemView& items, int row);
  virtual void Push(QPushButton& button);
  virtual void Write(Control& control, QWidget& field, const QString& text);  // over what is there

  FormDialog& dialog_;

 private:
  QWidget* WidgetOf(const Control& control) const;
  std::string Type(Control& control, std::string_view text);
  std::string PointAt(Control& control, std::string_view line);
  std::string Switch(Control& control, std::string_view text);
  std::string Pick(ListControl& control, std::string_view text);
  std::string Slide(Slider& slider, std::string_view text);
  void GoOn();
  void Settle();  // what the last event left to do is done

  DesktopStageOptions options_;
  Control* typed_ = nullptr;  // the field that the person has typed into and not left
};

}  // namespace orm
