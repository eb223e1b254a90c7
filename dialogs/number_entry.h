// How numbers are typed: which characters a numeric field takes, how a draft becomes a value, and
// how the value is shown.
#pragma once

#include <cstddef>
#include <limits>
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
  std::string currency = {};  // "L." or "€", which stands in the field before the number
  // A limit that a caption tells and nothing enforces: a value above it is only marked.
  double advised = std::numeric_limits<double>::infinity();
  bool pointIsComma = false;  // the key of the point writes a comma
};

// True while `draft` holds nothing but what numbers are written with: digits, commas, points and
// minus signs. Such keys are never dropped, so that what is left does not become another number:
// a draft that is none stays as it was typed, and ReadNumber says why it is not taken.
bool AdmitsDraft(std::string_view draft, const NumberLimits& limits);
// The same with the reason in Italian; empty when the draft is admitted.
std::string DraftObjection(std::string_view draft, const NumberLimits& limits);

// Reading of a typed or pasted number. A text with a comma and points is read by its last mark. A
// lone point is a thousands point when exactly three digits follow each point, otherwise the
// decimal mark: "1936.27" is 1936,27 and "1.500" is 1500. Zeros behind the last decimal that counts
// are dropped, in whole numbers all of them. What can be read in two ways, a thousand or a hundred
// times apart, is no number: "450,000" where fewer than three decimals are admitted, and "450.00"
// in a whole number. A currency, blanks around the number and blanks between its thousands, and the
// marks that close an amount in a document ("1.500.=") are left out.
struct NumberReading {
  std::optional<double> value;
  std::string objection;  // Italian, when there is no value
};
NumberReading ReadNumber(std::string_view text, const NumberLimits& limits);
// True while further digits behind the draft could still make a value of it: "1.2" in a whole
// number, on the way to "1.200".
bool IsOnItsWay(std::string_view draft, const NumberLimits& limits);

// A pasted text without what a number may carry around it.
std::string PastedDraft(std::string_view text);

// Puts the thousands points of a draft to their places. `caret` keeps its place among the other
// characters. A draft that is no plain number stays as it is.
void GroupThousands(std::string& draft, std::size_t& caret);

std::string ShownNumber(double value, const NumberLimits& limits);  // "1.234,5"
std::string DraftNumber(double value, const NumberLimits& limits);  // the same, empty for zero

}  // namespace orm
