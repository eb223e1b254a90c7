// FloatBox and InterBox: a draft without thousands points while the focus is in the field, the
// Italian form with points while it is elsewhere.
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
  for (const int step : {4, 7, 11, 15, 19})
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
    SetCharacters(SteppedWidth(LongestText(box.Limits())));
    UseField(&Line());
  }

 protected:
  std::string Admit(QString& text, bool inserted) const override {
    if (inserted && HoldsOnlyPasted(text)) return AdmitPasted(text);
    return DraftObjection(FromQt(text), box_.Limits());
  }
  Verdict Take(const std::string& text) override {
    const std::string objection = box_.Type(text);
    return {objection, !objection.empty() && IsBeyond(text)};
  }
  void TakeBack() override { box_.SetValue(before_); }
  void Keep() override { before_ = box_.Value(); }
  bool Means(const std::string& text) const override {
    return ReadNumber(text, box_.Limits()).value == box_.Value();
  }
  std::string RestingText() const override { return box_.ShownText(); }
  std::string DraftText() const override { return DraftNumber(box_.Value(), box_.Limits()); }
  bool IsReadOnly() const override { return box_.ReadOnly(); }
  bool Warns() const override { return box_.Warns(); }
  bool IsAutomatic() const override { return box_.IsAutomatic(); }
  QString Substitute(const QKeyEvent& key) const override {
    const bool point = key.key() == Qt::Key_Period || key.key() == Qt::Key_Comma;
    if (!point || !(key.modifiers() & Qt::KeypadModifier)) return {};
    return box_.Limits().decimals > 0 ? QStringLiteral(",") : QStringLiteral("");
  }

 private:
  // A text with marks that no one types is a pasted number, read as a whole.
  static bool HoldsOnlyPasted(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return !c.isDigit(); });
  }
  std::string AdmitPasted(QString& text) const {
    const bool hasDigit =
        std::any_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
    if (!hasDigit) return "Non è un numero.";
    const NumberReading reading = ReadNumber(FromQt(text), box_.Limits());
    if (!reading.value) return reading.objection;
    text = *reading.value == 0 ? QStringLiteral("0")
                               : ToQt(DraftNumber(*reading.value, box_.Limits()));
    return {};
  }
  // Further digits only lead farther from the limits.
  bool IsBeyond(const std::string& text) const {
    NumberLimits wide = box_.Limits();
    wide.most = 1e15, wide.least = -1e15;
    const NumberReading reading = ReadNumber(text, wide);
    return !reading.value || *reading.value > box_.Limits().most ||
           *reading.value < std::min(box_.Limits().least, 0.0);
  }

  NumberBox& box_;
  double before_;
};

}  // namespace

std::unique_ptr<ControlView> MakeNumberView(NumberBox& box, FormHost& host) {
  return std::make_unique<NumberView>(box, host);
}

}  // namespace orm
