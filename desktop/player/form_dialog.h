// A form on the screen.
#pragma once

#include <QDialog>
#include <exception>
#include <map>
#include <memory>
#include <vector>

#include "desktop/controls/control_view.h"
#include "dialogs/form.h"

class QScrollArea;

namespace orm {

class HeadingLine;

class FormDialog : public QDialog, public FormView, public FormHost {
 public:
  // The form has been opened and outlives the dialog.
  FormDialog(Form& form, QWidget* parent);
  ~FormDialog() override;

  Form& Model() const { return form_; }
  const HeadingLine* TopLine() const { return heading_; }  // nullptr: the form stands alone
  ControlView& ViewOf(const Control& control) const { return *views_.at(&control); }
  // The least size without scrolling, and what a window's borders and title bar add to it.
  QSize LeastSize() const { return least_; }
  static constexpr QSize kFrame{16, 48};
  // The controls that stand in the layout, in the order in which they are read.
  const std::vector<Control*>& ReadingOrder() const { return reading_; }
  // A failure within an event of the form ended it: goes on to the caller of the form.
  void RethrowFailure();

  void ControlChanged(Control& control) override;
  void FocusMoved(Control& control) override;
  void TitleChanged() override;
  void Act(const std::function<void()>& event) override;
  void Press(Button& button) override;
  Button* ButtonOfKey(const std::string& key) const override;
  QWidget* Window() override { return this; }
  void reject() override;  // Escape and the window button

 protected:
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void MakeViews();
  void Arrange();
  void ChainFocus();
  bool SettleFields();
  void Refit();
  void Fit(const QSize& wanted);
  void Centre();
  void KeepOnScreen();
  void SettleDefault();
  QSize Room() const;  // of the screen, within the frame of a window
  QSize LostInRounding() const;

  Form& form_;
  std::map<const Control*, std::unique_ptr<ControlView>> views_;
  std::vector<Control*> reading_;
  HeadingLine* heading_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  bool grows_ = false;
  bool refit_ = false;
  bool shown_ = false;
  QSize fitted_;  // the size that the content wanted last
  QSize least_;
  int depth_ = 0;
  std::exception_ptr failure_;
};

}  // namespace orm
