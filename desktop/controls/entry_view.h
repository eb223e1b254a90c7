// Fields of one line that are typed into: text, numbers, bars, days. What is typed is a draft; the
// control takes it at once where it is a value, and the field tells why where it is not.
#pragma once

#include <QLineEdit>

#include "desktop/controls/control_view.h"

class QAction;

namespace orm {

class EntryView;

// The line itself: hands keys and focus to its view.
class EntryLine : public QLineEdit {
 public:
  EntryLine(EntryView& view, QWidget* parent);
  // A short text at the left end of the field that is no part of what is typed.
  void SetPrefix(const QString& prefix);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  EntryView& view_;
  QString prefix_;
};

class EntryView : public ControlView {
 public:
  EntryView(Control& control, FormHost& host);

  void Refresh() override;
  std::string Shown() const override;
  std::string Objection() const override { return verdict_.objection; }
  bool Settle() override;
  std::string TakeRefusal() override { return std::exchange(refusal_, {}); }

  struct Verdict {
    std::string objection;      // empty: the value is taken
    bool beyondRepair = false;  // no further key makes a value of it: told at once
  };

 protected:
  // Why the text cannot stand in the field, not even as a draft. It may be tidied, and `caret` goes
  // along; what has been put in before the caret is `inserted`, several characters when pasted.
  virtual std::string Admit(QString& text, int& caret, const QString& inserted) = 0;
  virtual Verdict Take(const std::string& text) = 0;  // gives the text to the control
  virtual void TakeBack() {}                          // the control's value from before the draft
  virtual void Written() {}  // the control's value stands in the field, in the program's writing
  virtual void Keep() {}     // the control's value is the one to go back to
  virtual bool Means(const std::string& text) const = 0;  // the control's value, in other writing
  virtual std::string RestingText() const = 0;            // shown while the focus is elsewhere
  virtual std::string DraftText() const { return RestingText(); }
  virtual bool IsReadOnly() const { return false; }
  virtual bool Warns() const { return false; }
  virtual std::string Advice() const { return {}; }  // what a value is marked for, though taken
  // What the field does of its own at a key; true when nothing is left of the key.
  virtual bool ActsOn(const QKeyEvent&) { return false; }
  virtual bool IsAutomatic() const { return false; }
  virtual bool IsStale() const { return false; }  // a result of other data, or of none yet
  // A key that the field wants to see as another one.
  virtual QString Substitute(const QKeyEvent&) const { return {}; }

  EntryLine& Line() const { return *line_; }
  void SetCharacters(int characters, bool stretches = false);

 private:
  friend class EntryLine;
  friend class EntryValidator;
  void BeginEditing();
  void Edited();
  void WriteText();
  void ShowMark();
  int MarkWidth() const;
  void Refuse(std::string why);

  EntryLine* line_;
  QAction* mark_ = nullptr;
  bool editing_ = false;
  bool taking_ = false;   // what is typed goes to the control
  bool writing_ = false;  // what the control holds goes to the line
  Verdict verdict_;
  std::string refusal_;
  std::string lastResting_;
  QString tidied_;  // the text as it was admitted last
  int from_ = 0;    // where the next insertion begins
};

}  // namespace orm
