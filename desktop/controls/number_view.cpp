// FloatBox and InterBox. The thousands points come by themselves while one types, and go when the
// person puts points of his own.
#include <QKeyEvent>
#include <algorithm>
#include <cmath>

#include "desktop/controls/entry_view.h"
#include "desktop/controls/views.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

// Widths come in few steps, so that fields below each other look like columns.
int SteppedWidth(std::size_t characters) {
  for (const int step : {4, 7, 11, 16, 19})
    if (characters <= static_cast<std::size_t>(step)) return step;
  return 24;
}

std::size_t LongestText(NumberLimits limits) {
  limits.trailingZeros = true;
  return std::max(ShownNumber(limits.most, limits).size(),
                  ShownNumber(limits.least, limits).size());
}

class NumberView : public EntryView {
 public:
  NumberView(NumberBox& box, FormHost& host)
      : EntryView(box, host), box_(box), before_(box.Value()) {
    Line().setAlignment(Qt::AlignRight);
    Line().setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    if (!box.Limits().currency.empty()) Line().SetPrefix(ToQt(box.Limits().currency));
    SetCharacters(SteppedWidth(LongestText(box.Limits())));
    UseField(&Line());
  }

 protected:
  std::string Admit(QString& text, int& caret, const QString& inserted) override {
    if (inserted.size() > 1 && !OnlyDigits(inserted)) return AdmitPasted(text, caret, inserted);
    std::string why = DraftObjection(FromQt(text), box_.Limits());
    if (why.empty()) Group(text, caret, inserted == ".");
    return why;
  }
  Verdict Take(const std::string& text) override {
    const std::string objection = box_.Type(text);
    return {objection, !objection.empty() && !IsOnItsWay(text, box_.Limits())};
  }
  void TakeBack() override { box_.SetValue(before_); }
  void Keep() override { before_ = box_.Value(); }
  void Written() override { ownPoints_ = false; }
  bool Means(const std::string& text) const override {
    return ReadNumber(text, box_.Limits()).value == box_.Value();
  }
  std::string RestingText() const override { return box_.ShownText(); }
  std::string DraftText() const override { return DraftNumber(box_.Value(), box_.Limits()); }
  bool IsReadOnly() const override { return box_.ReadOnly(); }
  bool Warns() const override { return box_.Warns(); }
  bool IsAutomatic() const override { return box_.IsAutomatic(); }
  bool IsStale() const override { return box_.IsStale(); }
  std::string Advice() const override {
    if (!box_.IsBeyondAdvised()) return {};
    return "Oltre il massimo indicato, " + ShownNumber(box_.Limits().advised, box_.Limits()) +
           ": il valore è preso così com'è.";
  }
  QString Substitute(const QKeyEvent& key) const override {
    const bool point = key.key() == Qt::Key_Period || key.key() == Qt::Key_Comma;
    const bool comma = box_.Limits().pointIsComma || (key.modifiers() & Qt::KeypadModifier);
    return point && comma ? QStringLiteral(",") : QString();
  }
  // A thousands point is gone over: what is deleted is the digit beyond it. Undoing brings back the
  // value from before.
  bool ActsOn(const QKeyEvent& key) override {
    QLineEdit& line = Line();
    if (line.isReadOnly()) return false;
    if (key.matches(QKeySequence::Undo)) {
      line.selectAll();
      line.insert(ToQt(DraftNumber(before_, box_.Limits())));
      return true;
    }
    const int caret = line.cursorPosition();
    if (line.hasSelectedText() || ownPoints_) return false;
    if (key.key() == Qt::Key_Backspace && caret > 1 && line.text()[caret - 1] == '.')
      line.cursorBackward(false);
    if (key.key() == Qt::Key_Delete && caret < line.text().size() && line.text()[caret] == '.')
      line.cursorForward(false);
    return false;
  }

 private:
  void Group(QString& text, int& caret, bool point) {
    if (point && !ownPoints_) {
      // The first point of the person's own: those that came by themselves go.
      const QString before = text.left(caret - 1).remove('.');
      text = before + '.' + text.mid(caret).remove('.');
      caret = static_cast<int>(before.size()) + 1;
    }
    ownPoints_ = text.contains('.') && (ownPoints_ || point);
    if (ownPoints_) return;
    std::string draft = FromQt(text);
    auto place = static_cast<std::size_t>(caret);
    GroupThousands(draft, place);
    text = ToQt(draft);
    caret = static_cast<int>(place);
  }
  static bool OnlyDigits(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
  }
  // A number with its marks is read as a whole, with the digits around it if there are any.
  std::string AdmitPasted(QString& text, int& caret, const QString& inserted) {
    QString before = text.left(caret - inserted.size()), after = text.mid(caret);
    if (!ownPoints_) before.remove('.'), after.remove('.');
    const std::string whole = FromQt(before + inserted + after);
    const NumberReading reading = ReadNumber(whole, box_.Limits());
    if (reading.value) {
      text = *reading.value == 0 ? QStringLiteral("0")
                                 : ToQt(DraftNumber(*reading.value, box_.Limits()));
    } else {
      // Figures that are no value stay to be mended; any other text is not for this field.
      const std::string draft = PastedDraft(whole);
      const bool digits = draft.find_first_of("0123456789") != std::string::npos;
      if (!digits || !AdmitsDraft(draft, box_.Limits())) return reading.objection;
      text = ToQt(draft);
    }
    ownPoints_ = !reading.value;
    caret = static_cast<int>(text.size());
    return {};
  }

  NumberBox& box_;
  double before_;
  bool ownPoints_ = false;  // the points in the field are the person's
};

}  // namespace

std::unique_ptr<ControlView> MakeNumberView(NumberBox& box, FormHost& host) {
  return std::make_unique<NumberView>(box, host);
}

}  // namespace orm
