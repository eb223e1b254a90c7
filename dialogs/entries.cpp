#include "dialogs/entries.h"

#include <utility>

#include "dialogs/bars.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

NumberLimits Whole(NumberLimits limits) {
  limits.decimals = 0;
  return limits;
}

}  // namespace

TestoBox::TestoBox(Form& form, std::string name, std::string caption, TextOptions options)
    : Control(form, Kind::TextBox, std::move(name), std::move(caption)),
      options_(std::move(options)) {
  SetUnit(options_.unit);
  SetHint(options_.hint);
}

void TestoBox::SetText(std::string text) {
  if (std::exchange(text_, std::move(text)) != text_) Changed();
}

std::string TestoBox::Objection(std::string_view text) const {
  if (Characters(text) > static_cast<std::size_t>(options_.longest))
    return "Il testo può avere al massimo " + NumberText(options_.longest) + " caratteri.";
  for (std::size_t i = 0; i < text.size();) {
    const char32_t c = NextCharacter(text, i);
    if (c == '\n' && options_.lines > 1) continue;
    if (c < 0x20 || c == 0x7F || !FitsWindows1252(c))
      return "Il testo contiene un carattere che i file della procedura non possono contenere.";
  }
  return {};
}

std::string TestoBox::Type(std::string_view text) {
  std::string objection = Objection(text);
  if (objection.empty()) SetText(std::string(text));
  return objection;
}

std::string TestoBox::Enter(std::string_view text) {
  if (!options_.readOnly) return Type(text);
  const auto line = text.starts_with('#') ? ParseNumber(text.substr(1)) : std::nullopt;
  if (!onLine || !line) return Control::Enter(text);
  onLine(static_cast<int>(*line));
  return {};
}

NumberBox::NumberBox(Form& form, std::string name, std::string caption, NumberLimits limits)
    : Control(form, Kind::NumberBox, std::move(name), std::move(caption)),
      limits_(std::move(limits)) {
  SetUnit(limits_.unit);
  SetHint(limits_.hint);
}

void NumberBox::SetValue(double value) {
  const bool same = value == value_ && shown_.empty();
  value_ = value;
  shown_.clear();
  if (!same) Changed();
}

void NumberBox::SetShown(std::string text) {
  if (std::exchange(shown_, std::move(text)) != shown_) Refresh();
}

void NumberBox::SetReadOnly(bool readOnly) {
  if (std::exchange(readOnly_, readOnly) != readOnly) Refresh();
}

void NumberBox::SetWarning(bool warns) {
  if (std::exchange(warns_, warns) != warns) Refresh();
}

void NumberBox::SetStale(bool stale) {
  if (std::exchange(stale_, stale) != stale) Refresh();
}

void NumberBox::SetAdvised(double most) {
  if (std::exchange(limits_.advised, most) != most) Refresh();
}

std::string NumberBox::Type(std::string_view draft) {
  const NumberReading reading = ReadNumber(draft, limits_);
  if (reading.value) SetValue(*reading.value);
  return reading.objection;
}

std::string NumberBox::ShownText() const {
  return shown_.empty() ? ShownNumber(value_, limits_) : shown_;
}

std::string NumberBox::Enter(std::string_view text) {
  if (readOnly_) return Control::Enter(text);
  if (!AdmitsDraft(text, limits_)) return "Il campo non ammette questi caratteri.";
  return Type(text);
}

FloatBox::FloatBox(Form& form, std::string name, std::string caption, NumberLimits limits)
    : NumberBox(form, std::move(name), std::move(caption), std::move(limits)) {}

InterBox::InterBox(Form& form, std::string name, std::string caption, NumberLimits limits)
    : NumberBox(form, std::move(name), std::move(caption), Whole(std::move(limits))) {}

FerriBox::FerriBox(Form& form, std::string name, std::string caption)
    : Control(form, Kind::BarsBox, std::move(name), std::move(caption)) {
  SetHint("Numero di ferri, la lettera D e il diametro in mm, gruppi uniti da + : 2D16+2D12");
}

void FerriBox::SetText(std::string text) {
  if (std::exchange(text_, std::move(text)) != text_) Changed();
}

double FerriBox::Area() const { return BarsArea(text_); }
std::string FerriBox::AreaText() const { return FormatPattern(Area(), "0.00") + " cmq"; }

const char* FerriBox::Writing() {
  return "L'armatura si scrive con il numero dei ferri, la lettera D e il diametro in mm, per "
         "esempio 2D16+2D12.";
}

std::string FerriBox::Objection(std::string_view text) const {
  if (text.size() > 60) return "Il testo può avere al massimo 60 caratteri.";
  return AdmitsBarsDraft(text) ? "" : Writing();
}

std::string FerriBox::Type(std::string_view text) {
  std::string objection = Objection(text);
  if (objection.empty()) SetText(std::string(text));
  return objection;
}

std::string FerriBox::Enter(std::string_view text) {
  return IsBarsText(text) ? Type(text) : Writing();
}

}  // namespace orm
