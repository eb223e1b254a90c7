// The widget of one control, and the way between the two: what a person does goes to the control
// through the form's host, what the logic does comes back by Refresh.
#pragma once

#include <QLabel>
#include <QObject>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "dialogs/form.h"

class QHBoxLayout;

namespace orm {

// The window in which the controls stand.
class FormHost {
 public:
  virtual ~FormHost() = default;
  // Runs an event of the form. The window follows when the event has closed the form or changed
  // what is to be seen; a failure ends the form and goes on to whoever showed it.
  virtual void Act(const std::function<void()>& event) = 0;
  // A button was pressed: the fields settle first.
  virtual void Press(Button& button) = 0;
  // The button that has this key, if one is there to be pressed.
  virtual Button* ButtonOfKey(const std::string& key) const = 0;
  virtual QWidget* Window() = 0;
};

class ControlView : public QObject {
 public:
  ControlView(Control& control, FormHost& host) : host_(host), control_(control) {}

  Control& Model() const { return control_; }
  QWidget* Field() const { return field_; }  // the widget that a person uses, named as the control
  QWidget* Whole() const { return whole_; }  // the field with what stands behind it
  QLabel* Caption() const { return caption_; }  // nullptr where the widget has its own

  // The caption is told elsewhere, by the heading of a table: it only names the field.
  void LeaveCaptionOut();

  virtual void Refresh();                 // value and looks
  virtual std::string Shown() const = 0;  // what a person reads
  // Gives more room a use: several lines, a list, a drawing.
  virtual bool Grows() const { return false; }
  bool KeepsWidth() const;  // more width is of no use

  // Why what stands in the field is not taken; empty when it is.
  virtual std::string Objection() const { return {}; }
  // The person goes on from this field: what is typed is taken, or the objection is shown.
  virtual bool Settle() { return true; }
  // Why the last key or paste was refused, since the last call.
  virtual std::string TakeRefusal() { return {}; }

 protected:
  // A field with a caption before it and a unit behind, or a widget that carries its own text.
  void UseField(QWidget* field);
  void UseBare(QWidget* widget);
  // A field with tools of its own around it.
  void UseWithin(QWidget* field, QWidget* whole);
  void AddBehind(QWidget* widget);  // between the field and its unit
  void NameForAccess();

  bool eventFilter(QObject* watched, QEvent* event) override;
  virtual void FocusEntered() {}
  virtual void FocusLeft();

  FormHost& host_;

 private:
  void ShowUnit();
  Control& control_;
  QWidget* field_ = nullptr;
  QWidget* whole_ = nullptr;
  QLabel* caption_ = nullptr;
  bool captionLeftOut_ = false;
  QLabel* unit_ = nullptr;
  QHBoxLayout* line_ = nullptr;
};

std::unique_ptr<ControlView> MakeView(Control& control, FormHost& host);

// Lines of at most `longest` characters, for widgets that cannot wrap by themselves.
QString Wrapped(const QString& text, int longest);

}  // namespace orm
