#include "runtime/dates.h"

#include <charconv>
#include <chrono>
#include <ctime>

namespace orm {
namespace {

std::chrono::year_month_day Calendar(const Date& d) {
  return std::chrono::year(d.year) / std::chrono::month(static_cast<unsigned>(d.month)) /
         std::chrono::day(static_cast<unsigned>(d.day));
}

}  // namespace

std::string Padded(int value, std::size_t width) {
  char buffer[16];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  std::string text(buffer, end);
  return std::string(text.size() < width ? width - text.size() : 0, '0') + text;
}

bool IsValid(const Date& d) {
  return d.year >= 1 && d.year <= 9999 && d.month >= 1 && d.month <= 12 && d.day >= 1 &&
         Calendar(d).ok();
}

std::string ShortDate(const Date& d) {
  return Padded(d.day, 2) + "/" + Padded(d.month, 2) + "/" + Padded(d.year, 4);
}

std::optional<Date> WrittenDate(std::string_view text) {
  int parts[3] = {};
  const char* at = text.data();
  const char* const end = text.data() + text.size();
  std::size_t yearDigits = 0;
  for (int i = 0; i < 3; ++i) {
    const char* const start = at;
    const auto [next, error] = std::from_chars(at, end, parts[i]);
    if (error != std::errc() || *start == '-' || next - start > 4) return std::nullopt;
    yearDigits = static_cast<std::size_t>(next - start);
    at = next;
    if (i < 2 && (at == end || std::string_view("/-.").find(*at++) == std::string_view::npos))
      return std::nullopt;
  }
  if (at != end || (yearDigits != 2 && yearDigits != 4)) return std::nullopt;
  Date date{parts[2], parts[1], parts[0]};
  if (yearDigits == 2) date.year += date.year < 30 ? 2000 : 1900;
  return date;
}

std::optional<Date> ParseDate(std::string_view text) {
  const auto date = WrittenDate(text);
  return date && IsValid(*date) ? date : std::nullopt;
}

long DayNumber(const Date& d) {
  return std::chrono::sys_days(Calendar(d)).time_since_epoch().count();
}

Date DateOfDay(long dayNumber) {
  const std::chrono::year_month_day day{std::chrono::sys_days(std::chrono::days(dayNumber))};
  return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
          static_cast<int>(static_cast<unsigned>(day.day()))};
}

Date SystemDate() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

}  // namespace orm
