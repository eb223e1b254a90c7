#include "dialogs/control.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "dialogs/bars.h"
#include "dialogs/form.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {

Control::Control(Form& form, Kind kind, std::string name, std::string caption)
    : form_(form), kind_(kind), name_(std::move(name)), caption_(std::move(caption)) {
  form.controls_.push_back(this);
}

void Control::Refresh() {
  if (FormView* view = form_.View()) view->ControlChanged(*this);
}

void Control::Changed() {
  Refresh();
  if (onChange) onChange();
}

void Control::SetCaption(std::string caption) {
  if (std::exchange(caption_, std::move(caption)) != caption_) Refresh();
}

void Control::SetUnit(std::string unit) {
  if (std::exchange(unit_, std::move(unit)) != unit_) Refresh();
}

void Control::SetHint(std::string hint) {
  if (std::exchange(hint_, std::move(hint)) != hint_) Refresh();
}

void Control::SetVisible(bool visible) {
  if (std::exchange(visible_, visible) != visible) Refresh();
}

void Control::SetEnabled(bool enabled) {
  if (std::exchange(enabled_, enabled) != enabled) Refresh();
}

bool Control::IsShown() const { return visible_ && (parent_ == nullptr || parent_->IsShown()); }
bool Control::IsActive() const { return enabled_ && (parent_ == nullptr || parent_->IsActive()); }

// ---------------------------------------------------------------- Label, TestoBox

namespace {
const char* const kNotAnEntry = "Non è un campo da riempire.";
}

Label::Label(Form& form, std::string name, std::string text, Style style)
    : Control(form, Kind::Label, std::move(name), {}), text_(std::move(text)), style_(style) {}

void Label::SetText(std::string text) {
  if (std::exchange(text_, std::move(text)) != text_) Changed();
}

void Label::SetStyle(Style style) {
  if (std::exchange(style_, style) != style) Refresh();
}

std::string Label::Enter(std::string_view) { return kNotAnEntry; }

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
  return options_.readOnly ? kNotAnEntry : Type(text);
}

// ---------------------------------------------------------------- numbers

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

std::string NumberBox::Type(std::string_view draft) {
  const NumberReading reading = ReadNumber(draft, limits_);
  if (reading.value) SetValue(*reading.value);
  return reading.objection;
}

std::string NumberBox::ShownText() const {
  return shown_.empty() ? ShownNumber(value_, limits_) : shown_;
}

std::string NumberBox::Enter(std::string_view text) {
  if (readOnly_) return kNotAnEntry;
  if (!AdmitsDraft(text, limits_)) return "Il campo non ammette questi caratteri.";
  return Type(text);
}

FloatBox::FloatBox(Form& form, std::string name, std::string caption, NumberLimits limits)
    : NumberBox(form, std::move(name), std::move(caption), std::move(limits)) {}

namespace {
NumberLimits Whole(NumberLimits limits) {
  limits.decimals = 0;
  return limits;
}
}  // namespace

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

// ---------------------------------------------------------------- choices

namespace {
std::string EnterSwitch(std::string_view text, const std::function<void(bool)>& set) {
  if (text != "on" && text != "off") return "Si può solo scegliere (on) o lasciare (off).";
  set(text == "on");
  return {};
}
}  // namespace

int OptionGroup::Chosen() const {
  for (std::size_t i = 0; i < options_.size(); ++i)
    if (options_[i]->Value()) return static_cast<int>(i);
  return -1;
}

void OptionGroup::Choose(int index) {
  for (std::size_t i = 0; i < options_.size(); ++i)
    if (static_cast<int>(i) != index) options_[i]->SetValue(false);
  if (index >= 0 && index < static_cast<int>(options_.size()))
    options_[static_cast<std::size_t>(index)]->SetValue(true);
}

OptionButton::OptionButton(Form& form, std::string name, std::string caption, OptionGroup& group)
    : Control(form, Kind::Option, std::move(name), std::move(caption)), group_(group) {
  group.options_.push_back(this);
}

void OptionButton::SetValue(bool value) {
  if (value_ == value) return;
  if (value)
    for (OptionButton* other : group_.options_)
      if (other != this) other->SetValue(false);
  value_ = value;
  Changed();
}

std::string OptionButton::Enter(std::string_view text) {
  if (text != "on") return "Un'opzione si lascia scegliendone un'altra.";
  SetValue(true);
  return {};
}

CheckBox::CheckBox(Form& form, std::string name, std::string caption)
    : Control(form, Kind::Check, std::move(name), std::move(caption)) {}

void CheckBox::SetValue(bool value) {
  if (std::exchange(value_, value) != value) Changed();
}

std::string CheckBox::Enter(std::string_view text) {
  return EnterSwitch(text, [this](bool value) { SetValue(value); });
}

ListControl::ListControl(Form& form, Kind kind, std::string name, std::string caption,
                         std::vector<std::string> items)
    : Control(form, kind, std::move(name), std::move(caption)), items_(std::move(items)) {}

void ListControl::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  index_ = -1;
  Refresh();
}

void ListControl::SetIndex(int index) {
  if (index < 0 || index >= static_cast<int>(items_.size())) index = -1;
  if (std::exchange(index_, index) != index) Changed();
}

std::string ListControl::ShownText() const {
  return index_ < 0 ? std::string() : items_[static_cast<std::size_t>(index_)];
}

std::string ListControl::Enter(std::string_view text) {
  if (text.size() > 1 && text[0] == '#') {
    const auto index = ParseNumber(text.substr(1));
    if (!index || *index < 0 || *index >= static_cast<double>(items_.size()))
      return "La lista non ha questa voce.";
    SetIndex(static_cast<int>(*index));
    return {};
  }
  const auto found = std::find(items_.begin(), items_.end(), text);
  if (found == items_.end()) return "La lista non ha questa voce.";
  SetIndex(static_cast<int>(found - items_.begin()));
  return {};
}

ComboBox::ComboBox(Form& form, std::string name, std::string caption,
                   std::vector<std::string> items)
    : ListControl(form, Kind::Combo, std::move(name), std::move(caption), std::move(items)) {}

ListBox::ListBox(Form& form, std::string name, std::string caption, std::vector<std::string> items)
    : ListControl(form, Kind::List, std::move(name), std::move(caption), std::move(items)) {}

// ---------------------------------------------------------------- days and sliders

DatePicker::DatePicker(Form& form, std::string name, std::string caption, orm::Date first,
                       orm::Date last)
    : Control(form, Kind::Date, std::move(name), std::move(caption)),
      first_(first),
      last_(last),
      value_(first) {}

void DatePicker::SetValue(const orm::Date& value) {
  const orm::Date allowed = std::clamp(value, first_, last_);
  if (std::exchange(value_, allowed) != allowed) Changed();
}

std::string DatePicker::Enter(std::string_view text) {
  const auto date = ParseDate(text);
  if (!date) return "La data si scrive gg/mm/aaaa.";
  if (*date < first_ || *date > last_)
    return "La data deve essere fra " + ShortDate(first_) + " e " + ShortDate(last_) + ".";
  SetValue(*date);
  return {};
}

Slider::Slider(Form& form, std::string name, std::string caption, double least, double most,
               int steps)
    : Control(form, Kind::Slider, std::move(name), std::move(caption)),
      least_(least),
      most_(most),
      steps_(steps) {}

double Slider::Value() const { return least_ + (most_ - least_) * position_ / steps_; }

void Slider::SetValue(double value) {
  SetPosition(static_cast<int>(std::lround((value - least_) / (most_ - least_) * steps_)));
}

void Slider::SetPosition(int position) {
  position = std::clamp(position, 0, steps_);
  if (std::exchange(position_, position) != position) Changed();
}

std::string Slider::ShownText() const { return FormatPattern(Value(), "0.##"); }

std::string Slider::Enter(std::string_view text) {
  const NumberReading reading = ReadNumber(text, {.least = least_, .most = most_, .decimals = 9});
  if (reading.value) SetValue(*reading.value);
  return reading.objection;
}

// ---------------------------------------------------------------- frames, buttons, pictures

Frame::Frame(Form& form, std::string name, std::string caption)
    : Control(form, Kind::Frame, std::move(name), std::move(caption)) {}

std::string Frame::Enter(std::string_view) { return kNotAnEntry; }

Button::Button(Form& form, std::string name, std::string caption, Role role)
    : Control(form, Kind::Button, std::move(name), std::move(caption)), role_(role) {}

void Button::Press() {
  if (IsShown() && IsActive() && onPress) onPress();
}

std::string Button::ShownText() const {
  std::string text = Caption();
  std::erase(text, '&');
  return text;
}

std::string Button::Enter(std::string_view) { return kNotAnEntry; }

Image::Image(Form& form, std::string name, Subject subject)
    : Control(form, Kind::Image, std::move(name), {}), subject_(subject) {}

std::string Image::Enter(std::string_view) { return kNotAnEntry; }

}  // namespace orm
