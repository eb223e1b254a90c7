// Dates in the Italian short form.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orm {

struct Date {
  int year = 2002;
  int month = 1;
  int day = 1;
  auto operator<=>(const Date&) const = default;
};

bool IsValid(const Date& date);
std::string ShortDate(const Date& date);           // "15/03/2002"
std::string Padded(int value, std::size_t width);  // with zeros in front
// "gg/mm/aaaa", also with "-" or "."; two-digit years 00 to 29 are 20xx, the others 19xx. Nothing
// for any other text and for days that the calendar lacks.
std::optional<Date> ParseDate(std::string_view text);
// The same as it is written, also where the calendar lacks the day: 31/02/2024.
std::optional<Date> WrittenDate(std::string_view text);
// Days from 1 January 1970, for differences.
long DayNumber(const Date& date);
Date DateOfDay(long dayNumber);  // the other way round
Date SystemDate();

}  // namespace orm
