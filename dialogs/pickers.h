// Values between two ends: a day, and a place on a slide.
#pragma once

#include <string>
#include <string_view>

#include "dialogs/control.h"
#include "runtime/dates.h"

namespace orm {

// A day, typed or picked from a calendar.
class DatePicker : public Control {
 public:
  DatePicker(Form& form, std::string name, std::string caption, orm::Date first = {1900, 1, 1},
             orm::Date last = {2099, 12, 31});
  const orm::Date& Value() const { return value_; }
  void SetValue(const orm::Date& value);  // a day out of range moves to the nearest allowed one
  const orm::Date& First() const { return first_; }
  const orm::Date& Last() const { return last_; }
  static const char* Writing() { return "La data si scrive gg/mm/aaaa."; }
  std::string ShownText() const override { return ShortDate(value_); }
  std::string Enter(std::string_view text) override;

 private:
  orm::Date first_, last_, value_;
};

// A value between two ends in `steps` equal steps.
class Slider : public Control {
 public:
  Slider(Form& form, std::string name, std::string caption, double least, double most,
         int steps = 100);
  double Value() const;
  void SetValue(double value);  // to the nearest step
  int Position() const { return position_; }
  void SetPosition(int position);
  double Least() const { return least_; }
  double Most() const { return most_; }
  int Steps() const { return steps_; }
  std::string ShownText() const override;
  std::string Enter(std::string_view text) override;

 private:
  double least_, most_;
  int steps_;
  int position_ = 0;
};

}  // namespace orm
