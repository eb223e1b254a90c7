// The find bar under the page: it marks every match and walks through them.
#pragma once

#include <QTextEdit>
#include <QWidget>
#include <functional>
#include <memory>

class QCheckBox;
class QLabel;
class QLineEdit;
class QShortcut;

namespace orm {

// The text in which a find bar seeks, whatever widget shows it.
class SoughtText {
 public:
  virtual ~SoughtText() = default;
  virtual QWidget& Widget() = 0;
  virtual QTextDocument& Document() = 0;
  virtual QTextCursor Cursor() const = 0;
  virtual void SetCursor(const QTextCursor& cursor) = 0;
  virtual void Mark(const QList<QTextEdit::ExtraSelection>& marks) = 0;
};

template <class Edit>
class TextOf : public SoughtText {
 public:
  explicit TextOf(Edit& edit) : edit_(edit) {}
  QWidget& Widget() override { return edit_; }
  QTextDocument& Document() override { return *edit_.document(); }
  QTextCursor Cursor() const override { return edit_.textCursor(); }
  void SetCursor(const QTextCursor& cursor) override { edit_.setTextCursor(cursor); }
  void Mark(const QList<QTextEdit::ExtraSelection>& marks) override {
    edit_.setExtraSelections(marks);
  }

 private:
  Edit& edit_;
};

// Texts behind the end of the one that is shown, in which a find bar seeks too.
struct FurtherText {
  std::function<int(const QString& words, Qt::CaseSensitivity letters)> count;
  std::function<void(int match)> show;  // counted from 0, of those counted last
  QString remark;                       // where they are: "nelle note"
};

class FindBar : public QWidget {
 public:
  template <class Edit>
  explicit FindBar(Edit& page, QWidget* parent = nullptr)
      : FindBar(std::make_unique<TextOf<Edit>>(page), parent) {}

  void Open();   // with the selected words, if any, as what is sought
  void Close();  // and gives the keyboard back to the page
  void Next() { Step(false); }
  void Previous() { Step(true); }
  void SeekAlsoIn(const FurtherText& further) { further_ = further; }
  void SeekAnew();  // after the further texts have changed

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  FindBar(std::unique_ptr<SoughtText> text, QWidget* parent);
  void Typed();  // seeks anew from the start of the present match
  void Step(bool backward);
  bool StepBeyond(bool backward);
  void MarkMatches();
  void ShowCount(const QString& remark = {});

  std::unique_ptr<SoughtText> text_;
  QLineEdit* field_;
  QCheckBox* case_;
  QLabel* count_;
  QShortcut* escape_;   // on the text, while the bar is open
  QList<int> matches_;  // their positions, in order
  FurtherText further_;
  int beyond_ = 0;     // how many matches the further texts have
  int atBeyond_ = -1;  // the one that is shown, if any
};

}  // namespace orm
