#include "runtime/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "runtime/failure.h"

namespace orm {
namespace {

// Significant digits and decimal exponent of |value|: value = 0.d1d2d3... x 10^point.
struct Digits {
  std::string digits;
  int point = 0;
};

Digits Decompose(double value) {
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                                 std::chars_format::scientific, 14)
                       .ptr;
  const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
  const auto e = text.find('e');
  Digits out;
  out.digits = std::string(1, text[0]) + std::string(text.substr(2, e - 2));
  int exponent = 0;
  const char* first = text.data() + e + (text[e + 1] == '+' ? 2 : 1);
  std::from_chars(first, end, exponent);
  out.point = exponent + 1;
  while (out.digits.size() > 1 && out.digits.back() == '0') out.digits.pop_back();
  return out;
}

// Digits rounded half away from zero to `decimals` places: whole part and decimals as text.
struct Rounded {
  std::string whole, decimals;
};

Rounded RoundDigits(double value, int decimals) {
  Digits d = Decompose(value);
  if (d.point < 0) {
    d.digits.insert(0, static_cast<std::size_t>(-d.point), '0');
    d.point = 0;
  }
  const auto places = static_cast<std::size_t>(d.point) + static_cast<std::size_t>(decimals);
  const bool up = places < d.digits.size() && d.digits[places] >= '5';
  d.digits.resize(places, '0');
  if (up) {
    std::size_t i = places;
    while (i > 0 && d.digits[i - 1] == '9') d.digits[--i] = '0';
    if (i > 0) {
      ++d.digits[i - 1];
    } else {
      d.digits.insert(d.digits.begin(), '1');
      ++d.point;
    }
  }
  const auto split = static_cast<std::size_t>(d.point);
  Rounded out{d.digits.substr(0, split), d.digits.substr(split)};
  out.whole.erase(0, std::min(out.whole.find_first_not_of('0'), out.whole.size()));
  return out;
}

// The greatest number of 15 digits. Rounded up to its digits, one still greater would be a text
// that nobody can read back.
constexpr double kGreatest = 1.79769313486231E+308;

bool IsNumber(double value) { return std::fabs(value) <= kGreatest; }

void RequireFinite(double value) {
  if (!IsNumber(value)) throw RuntimeFailure("Il risultato non è un numero finito (overflow).");
}

[[noreturn]] void Overflow(int bits) {
  throw RuntimeFailure("Il numero supera il limite di un intero a " +
                       std::string(bits == 16 ? "16" : "32") + " bit (overflow).");
}

}  // namespace

std::string NumberText(double value) {
  if (value == 0) return "0";
  RequireFinite(value);
  const Digits d = Decompose(value);
  const int size = static_cast<int>(d.digits.size());
  std::string out = value < 0 ? "-" : "";
  if (d.point > 15 || d.point < -3) {
    out += d.digits.substr(0, 1);
    if (size > 1) out += "." + d.digits.substr(1);
    const int exponent = d.point - 1;
    const std::string number = NumberText(std::abs(exponent));
    return out + (exponent < 0 ? "E-" : "E+") + (number.size() < 2 ? "0" : "") + number;
  }
  if (d.point <= 0)
    return out + "0." + std::string(static_cast<std::size_t>(-d.point), '0') + d.digits;
  if (d.point >= size)
    return out + d.digits + std::string(static_cast<std::size_t>(d.point - size), '0');
  const auto split = static_cast<std::size_t>(d.point);
  return out + d.digits.substr(0, split) + "." + d.digits.substr(split);
}

std::string BareNumber(double value) {
  std::string text = NumberText(value);
  std::replace(text.begin(), text.end(), '.', ',');
  return (value < 0 ? "" : " ") + text + " ";
}

std::optional<double> ParseNumber(std::string_view text) {
  if (!text.empty() && text[0] == '+') text.remove_prefix(1);
  const bool starts =
      !text.empty() && (text[0] == '-' || text[0] == '.' || (text[0] >= '0' && text[0] <= '9'));
  if (!starts) return std::nullopt;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool whole = end == text.data() + text.size();
  // Below the least double the text is still a number, and counts as zero.
  const auto exponent = text.find_first_of("eE");
  if (error == std::errc::result_out_of_range && whole && exponent != std::string_view::npos &&
      text.substr(exponent + 1).starts_with('-'))
    return 0.0;
  if (error != std::errc() || !whole || !IsNumber(value)) return std::nullopt;
  return value;
}

double Int(double value) { return std::floor(value); }
double Fix(double value) { return std::trunc(value); }

std::int16_t CheckedInt16(double value) {
  if (!(value >= -32768.0 && value <= 32767.0)) Overflow(16);
  return static_cast<std::int16_t>(value);
}

std::int32_t CheckedInt32(double value) {
  if (!(value >= -2147483648.0 && value <= 2147483647.0)) Overflow(32);
  return static_cast<std::int32_t>(value);
}

std::int32_t CheckedProduct32(std::int64_t a, std::int64_t b) {
  std::int64_t product = 0;
  if (__builtin_mul_overflow(a, b, &product) ||
      product > std::numeric_limits<std::int32_t>::max() ||
      product < std::numeric_limits<std::int32_t>::min())
    Overflow(32);
  return static_cast<std::int32_t>(product);
}

std::string FormatPattern(double value, std::string_view pattern) {
  RequireFinite(value);
  const auto point = pattern.find('.');
  const std::string_view wholePattern = pattern.substr(0, point);
  const std::string_view decimalPattern =
      point == std::string_view::npos ? "" : pattern.substr(point + 1);
  Rounded r = RoundDigits(value, static_cast<int>(decimalPattern.size()));

  const auto least =
      static_cast<std::size_t>(std::count(wholePattern.begin(), wholePattern.end(), '0'));
  if (r.whole.size() < least) r.whole.insert(0, least - r.whole.size(), '0');
  if (wholePattern.find(',') != std::string_view::npos)
    for (auto i = static_cast<int>(r.whole.size()) - 3; i > 0; i -= 3)
      r.whole.insert(static_cast<std::size_t>(i), ".");
  while (!r.decimals.empty() && r.decimals.back() == '0' &&
         decimalPattern[r.decimals.size() - 1] == '#')
    r.decimals.pop_back();

  const bool zero = r.whole.find_first_not_of("0.") == std::string::npos &&
                    r.decimals.find_first_not_of('0') == std::string::npos;
  std::string out = value < 0 && !zero ? "-" : "";
  out += r.whole;
  if (!r.decimals.empty()) out += "," + r.decimals;
  return out;
}

double RoundOnText(double value, int decimals) {
  RequireFinite(value);
  const Rounded r = RoundDigits(value, decimals);
  const double rounded = ParseNumber("0" + r.whole + "." + r.decimals + "0").value_or(0);
  return value < 0 ? -rounded : rounded;
}

}  // namespace orm
