#include "dialogs/pickers.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "dialogs/number_entry.h"
#include "runtime/numbers.h"

namespace orm {

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
  const auto date = WrittenDate(text);
  if (!date) return Writing();
  if (!IsValid(*date)) return "Il giorno " + std::string(text) + " non c'è nel calendario.";
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

}  // namespace orm
