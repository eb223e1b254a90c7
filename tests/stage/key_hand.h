// The hand of a script on a form, with the keyboard alone: Tab, mnemonics, arrows, Space, Enter and
// Escape, each given to the widget that has the focus.
#pragma once

#include "tests/stage/widget_hand.h"

class QMenu;
class QMenuBar;
class QMessageBox;

namespace orm {

class KeyHand : public WidgetHand {
 public:
  using WidgetHand::WidgetHand;
  void CloseByWindow() override;

 protected:
  void Reach(QWidget& widget) override;
  void Turn(QAbstractButton& mark) override;
  void Open(QComboBox& combo) override;
  void ChooseRow(QAbstractItemView& items, int row) override;
  void Push(QPushButton& button) override;
};

// The same hand, hasty: before each right entry come wrong ones of the kind that happen, each taken
// back again. A slip that is not stopped or not undone is a RuntimeFailure.
class HastyHand : public KeyHand {
 public:
  using KeyHand::KeyHand;

 protected:
  void Turn(QAbstractButton& mark) override;
  void Open(QComboBox& combo) override;
  void Write(Control& control, QWidget& field, const QString& text) override;

 private:
  void MustStay(const Control& control, const QString& slip);
  void SlipInNumber(NumberBox& box, QWidget& field, const QString& text);
};

// At a message box, and in the menus above a command.
void PressWithKeys(QMessageBox& box, QAbstractButton& button);
bool ChooseWithKeys(QMenuBar& bar, const std::vector<QMenu*>& path, QAction& command);

}  // namespace orm
