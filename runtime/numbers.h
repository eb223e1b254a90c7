// Numbers as the rules of the tariff see them: their text, their cuts, their limits.
//
// Everything here is independent of the C and of the system locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orm {

// Text of a number: up to 15 significant digits, full stop, no trailing zeros, "0.5" with its
// zero; exponent form "1.5E+15", "1E-05" where the decimal exponent is 15 or more, or below -4.
std::string NumberText(double value);

// The same with the Italian comma, a blank for the sign place and a trailing blank: the form of a
// number printed bare in a report. A negative number has its minus in the sign place.
std::string BareNumber(double value);

// The number at the start and the end of `text` ("0.5", ".5", "-3", "1E+15"), or nothing when the
// text is anything else; infinities and not-a-number are nothing.
std::optional<double> ParseNumber(std::string_view text);

// Greatest whole number not above, and the whole part toward zero.
double Int(double value);
double Fix(double value);

// Whole numbers stored in a field of 16 or 32 bits; beyond its range a RuntimeFailure.
std::int16_t CheckedInt16(double value);
std::int32_t CheckedInt32(double value);
// The product of two 32-bit whole numbers; beyond 32 bits a RuntimeFailure.
std::int32_t CheckedProduct32(std::int64_t a, std::int64_t b);

// Number by a pattern: '#' a digit if there is one, '0' a digit always, one '.' for the decimal
// comma, ',' between digits of the whole part for thousands points ("###0.00", "#,##0.0",
// "####.00"). The value is rounded half away from zero on its 15-digit text, and a value that
// shows as zero has no minus. Other characters of the pattern are not allowed.
std::string FormatPattern(double value, std::string_view pattern);

// Value rounded to `decimals` places, half away from zero, on its 15-digit text.
double RoundOnText(double value, int decimals);

}  // namespace orm
