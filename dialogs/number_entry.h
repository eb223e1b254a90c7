// How numbers are typed: which characters a numeric field takes, how a draft becomes a value, and
// how the value is shown.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orm {

struct NumberLimits {
  double least = 0;
  double most = 999999999999.0;
  int decimals = 2;            // 0: whole numbers
  bool trailingZeros = false;  // shown with all its decimals
  std::string unit = {};
  std::string hint = {};
};

// True while `draft` holds nothing but what a number may be typed with: digits, the comma, points
// of thousands, a leading minus where negative values are allowed; and no more of them than the
// greatest value has.
bool AdmitsDraft(std::string_view draft, const NumberLimits& limits);
// The same with the reason in Italian; empty when the draft is admitted.
std::string DraftObjection(std::string_view draft, const NumberLimits& limits);

// Reading of a typed or pasted number. A text with a comma and points is read by its last mark. A
// lone point is a thousands point when exactly three digits follow each point, otherwise the
// decimal mark: "1936.27" is 1936,27 and "1.500" is 1500, never ten or a thousand times off. A
// currency sign and blanks around a pasted number are left out.
struct NumberReading {
  std::optional<double> value;
  std::string objection;  // Italian, when there is no value
};
NumberReading ReadNumber(std::string_view text, const NumberLimits& limits);

std::string ShownNumber(double value, const NumberLimits& limits);  // "1.234,5"
std::string DraftNumber(double value, const NumberLimits& limits);  // "1234,5", for editing

}  // namespace orm
