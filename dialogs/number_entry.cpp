#include "dialogs/number_entry.h"

#include <algorithm>
#include <cmath>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string Pattern(const NumberLimits& limits, bool thousands) {
  std::string pattern = thousands ? "#,##0" : "0";
  if (limits.decimals > 0)
    pattern += "." + std::string(static_cast<std::size_t>(limits.decimals),
                                 limits.trailingZeros ? '0' : '#');
  return pattern;
}

// Removes what a pasted number may carry along.
std::string Bare(std::string_view text) {
  std::string out(text);
  for (const std::string_view mark : {"€", "£", "L.", "\u00A0", " ", "\t", "\r", "\n", "%"})
    for (auto at = out.find(mark); at != std::string::npos; at = out.find(mark))
      out.erase(at, mark.size());
  return out;
}

// True when the marks stand as thousands points do: three digits behind each, one to three before
// and no leading zero: "0.500" is a half.
bool GroupedInThrees(std::string_view whole, char mark) {
  const auto first = whole.find(mark);
  if (first == 0 || first > 3 || whole[0] == '0') return false;
  for (std::size_t i = first; i < whole.size(); i += 4)
    if (whole[i] != mark || whole.size() - i < 4 ||
        whole.substr(i + 1, 3).find(mark) != std::string::npos)
      return false;
  return true;
}

std::string TooManyDecimals(const NumberLimits& limits) {
  return limits.decimals == 0
             ? "Il numero deve essere intero."
             : "Il numero può avere al massimo " + NumberText(limits.decimals) + " decimali.";
}

std::string OutOfLimits(const NumberLimits& limits) {
  return "Il numero deve essere fra " + ShownNumber(limits.least, limits) + " e " +
         ShownNumber(limits.most, limits) + ".";
}

}  // namespace

bool AdmitsDraft(std::string_view draft, const NumberLimits& limits) {
  return DraftObjection(draft, limits).empty();
}

std::string DraftObjection(std::string_view draft, const NumberLimits& limits) {
  std::size_t digits = 0;
  for (std::size_t i = 0; i < draft.size(); ++i) {
    const char c = draft[i];
    if (IsDigit(c)) {
      ++digits;
    } else if (c == '-') {
      if (limits.least >= 0) return "Il numero non può essere negativo.";
      if (i > 0) return "Il segno meno sta davanti al numero.";
    } else if (c == ',') {
      if (limits.decimals == 0) return "Il numero deve essere intero.";
      if (draft.find(',') != i) return "Il numero ha già la sua virgola.";
    } else if (c != '.') {
      return limits.decimals == 0 ? "Qui si scrivono solo cifre."
                                  : "Qui si scrivono solo cifre e la virgola.";
    }
  }
  const auto comma = draft.find(',');
  if (comma != std::string_view::npos &&
      draft.size() - comma - 1 > static_cast<std::size_t>(limits.decimals))
    return TooManyDecimals(limits);
  const std::size_t longest =
      std::max(NumberText(Fix(limits.most)).size(), NumberText(Fix(std::abs(limits.least))).size());
  if (digits > longest + static_cast<std::size_t>(limits.decimals)) return OutOfLimits(limits);
  return {};
}

NumberReading ReadNumber(std::string_view text, const NumberLimits& limits) {
  std::string number = Bare(text);
  const bool negative = !number.empty() && number[0] == '-';
  if (negative) number.erase(0, 1);
  const auto refuse = [](std::string why) { return NumberReading{std::nullopt, std::move(why)}; };
  if (number.empty())
    return limits.least > 0 ? refuse(OutOfLimits(limits)) : NumberReading{0.0, {}};
  if (!std::all_of(number.begin(), number.end(),
                   [](char c) { return IsDigit(c) || c == ',' || c == '.'; }))
    return refuse("Non è un numero.");

  const auto commas = std::count(number.begin(), number.end(), ',');
  const auto points = std::count(number.begin(), number.end(), '.');
  char decimalMark = 0;
  if (commas > 0 && points > 0) {
    decimalMark = number.find_last_of(',') > number.find_last_of('.') ? ',' : '.';
  } else if (commas == 1) {
    decimalMark = ',';
  } else if (points == 1 && !GroupedInThrees(number, '.')) {
    decimalMark = '.';
  }
  std::string whole = number;
  std::string decimals;
  if (decimalMark != 0) {
    const auto at = number.find_last_of(decimalMark);
    whole = number.substr(0, at);
    decimals = number.substr(at + 1);
  }
  for (const char mark : {'.', ','}) {
    if (whole.find(mark) == std::string::npos) continue;
    if (mark == decimalMark || !GroupedInThrees(whole, mark))
      return refuse("I punti delle migliaia non sono al loro posto.");
    std::erase(whole, mark);
  }
  if (whole.empty() && decimals.empty()) return refuse("Non è un numero.");
  decimals.erase(decimals.find_last_not_of('0') + 1);
  if (decimals.size() > static_cast<std::size_t>(limits.decimals))
    return refuse(TooManyDecimals(limits));
  const auto value = ParseNumber((negative ? "-0" : "0") + whole + "." + decimals + "0");
  if (!value) return refuse("Il numero è troppo grande.");
  if (*value < limits.least || *value > limits.most) return refuse(OutOfLimits(limits));
  return {*value == 0 ? 0.0 : *value, {}};
}

std::string ShownNumber(double value, const NumberLimits& limits) {
  return FormatPattern(value, Pattern(limits, true));
}

std::string DraftNumber(double value, const NumberLimits& limits) {
  return value == 0 ? "" : FormatPattern(value, Pattern(limits, false));
}

}  // namespace orm
