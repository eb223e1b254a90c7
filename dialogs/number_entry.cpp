#include "dialogs/number_entry.h"

#include <algorithm>
#include <cmath>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string Pattern(const NumberLimits& limits) {
  std::string pattern = "#,##0";
  if (limits.decimals > 0)
    pattern += "." + std::string(static_cast<std::size_t>(limits.decimals),
                                 limits.trailingZeros ? '0' : '#');
  return pattern;
}

void Replace(std::string& text, std::string_view what, std::string_view with) {
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
    text.replace(at, what.size(), with);
}

void Trim(std::string& text) {
  text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
  text.erase(text.find_last_not_of(' ') + 1);
}

// Removes what a pasted number may carry around it. Blanks inside it stay, one for each.
std::string Bare(std::string_view text) {
  std::string out(text);
  for (char& c : out)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c | 0x20);
  for (const std::string_view blank : {"\u00A0", "\u202F", "\u2007", "\u2009", "\t", "\r", "\n"})
    Replace(out, blank, " ");
  Replace(out, "\u2212", "-");
  Trim(out);
  for (const std::string_view mark : {"lire", "lit.", "l.", "euro", "eur", "€", "£"})
    if (out.starts_with(mark)) {
      out.erase(0, mark.size());
      break;
    }
  Trim(out);
  for (const std::string_view mark :
       {".=", ",=", "=", ".-", ",-", "lire", "euro", "eur", "€", "£", "%"})
    if (out.ends_with(mark)) {
      out.erase(out.size() - mark.size());
      break;
    }
  Trim(out);
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

// Why a text of digits, points, commas and blanks cannot be read in one way only.
const char* const kMarksMisplaced = "I punti delle migliaia non sono al loro posto.";
const char* const kUnclear =
    "Così il numero non è chiaro: le migliaia si separano con il punto, i decimali con la virgola.";

// A number without its sign, as it is written: the digits before and behind the decimal mark.
struct Figures {
  std::string whole, decimals;
  std::string objection;
};

char DecimalMark(const std::string& number) {
  const auto commas = std::count(number.begin(), number.end(), ',');
  const auto points = std::count(number.begin(), number.end(), '.');
  if (commas > 0 && points > 0)
    return number.find_last_of(',') > number.find_last_of('.') ? ',' : '.';
  if (commas == 1) return ',';
  return points == 1 && !GroupedInThrees(number, '.') ? '.' : '\0';
}

Figures ReadFigures(const std::string& number, const NumberLimits& limits) {
  const char decimalMark = DecimalMark(number);
  const bool alone = number.find_first_of(".,") == number.find_last_of(".,");
  if (decimalMark == ',' && alone && limits.decimals < 3 && GroupedInThrees(number, ','))
    return {{}, {}, kUnclear};
  Figures read{number, {}, {}};
  if (decimalMark != 0) {
    const auto at = number.find_last_of(decimalMark);
    read = {number.substr(0, at), number.substr(at + 1), {}};
  }
  if (decimalMark == '.' && alone && limits.decimals == 0 && read.whole.size() < 4 &&
      read.decimals.find_first_not_of('0') == std::string::npos)
    return {{}, {}, kMarksMisplaced};
  for (const char mark : {'.', ',', ' '}) {
    if (read.whole.find(mark) == std::string::npos) continue;
    if (mark == decimalMark || !GroupedInThrees(read.whole, mark)) return {{}, {}, kMarksMisplaced};
    std::erase(read.whole, mark);
  }
  if (read.decimals.find(' ') != std::string::npos) return {{}, {}, kMarksMisplaced};
  if (read.whole.empty() && read.decimals.empty()) return {{}, {}, "Non è un numero."};
  read.decimals.erase(read.decimals.find_last_not_of('0') + 1);
  return read;
}

}  // namespace

bool AdmitsDraft(std::string_view draft, const NumberLimits& limits) {
  return DraftObjection(draft, limits).empty();
}

std::string DraftObjection(std::string_view draft, const NumberLimits& limits) {
  constexpr std::size_t kLongest = 40;
  if (draft.find_first_not_of("0123456789.,-") != std::string_view::npos)
    return limits.decimals == 0 ? "Qui si scrivono solo cifre."
                                : "Qui si scrivono solo cifre e la virgola.";
  return draft.size() > kLongest ? "Il numero è troppo lungo." : "";
}

std::string PastedDraft(std::string_view text) { return Bare(text); }

NumberReading ReadNumber(std::string_view text, const NumberLimits& limits) {
  const auto refuse = [](std::string why) { return NumberReading{std::nullopt, std::move(why)}; };
  std::string number = Bare(text);
  if (number.empty())
    return limits.least > 0 ? refuse(OutOfLimits(limits)) : NumberReading{0.0, {}};
  const bool negative = number[0] == '-';
  if (negative) number.erase(0, 1);
  Trim(number);
  if (number.empty() || number.find_first_not_of("0123456789., ") != std::string::npos)
    return refuse("Non è un numero.");
  const Figures read = ReadFigures(number, limits);
  if (!read.objection.empty()) return refuse(read.objection);
  if (read.decimals.size() > static_cast<std::size_t>(limits.decimals))
    return refuse(TooManyDecimals(limits));
  const auto value = ParseNumber((negative ? "-0" : "0") + read.whole + "." + read.decimals + "0");
  if (!value) return refuse("Il numero è troppo grande.");
  if (*value < 0 && limits.least >= 0) return refuse("Il numero non può essere negativo.");
  if (*value < limits.least || *value > limits.most) return refuse(OutOfLimits(limits));
  return {*value == 0 ? 0.0 : *value, {}};
}

bool IsOnItsWay(std::string_view draft, const NumberLimits& limits) {
  NumberLimits wide = limits;
  wide.most = 1e15, wide.least = -1e15;
  for (const char* digits : {"", "0", "00", "000"}) {
    const auto value = ReadNumber(std::string(draft) + digits, wide).value;
    if (value && *value <= limits.most && *value >= std::min(limits.least, 0.0)) return true;
  }
  return false;
}

void GroupThousands(std::string& draft, std::size_t& caret) {
  const std::size_t first = draft.starts_with('-') ? 1 : 0;
  const std::size_t comma = std::min(draft.find(','), draft.size());
  const bool plain =
      draft.find_first_not_of("0123456789.", first) >= comma &&
      draft.find_first_not_of("0123456789", std::min(comma + 1, draft.size())) == std::string::npos;
  if (!plain) return;
  std::string grouped;
  const std::size_t caretBefore = caret;
  std::size_t digits = 0;  // still to come before the comma
  for (std::size_t i = first; i < comma; ++i) digits += IsDigit(draft[i]) ? 1 : 0;
  const bool leadingZero = digits > 3 && draft[first] == '0';
  for (std::size_t i = 0; i < draft.size(); ++i) {
    if (i == caretBefore) caret = grouped.size();
    if (draft[i] == '.') continue;
    grouped += draft[i];
    if (i < first || i >= comma) continue;
    if (--digits > 0 && digits % 3 == 0 && !leadingZero) grouped += '.';
  }
  if (caretBefore >= draft.size()) caret = grouped.size();
  draft = std::move(grouped);
}

std::string ShownNumber(double value, const NumberLimits& limits) {
  return FormatPattern(value, Pattern(limits));
}

std::string DraftNumber(double value, const NumberLimits& limits) {
  return value == 0 ? "" : ShownNumber(value, limits);
}

}  // namespace orm
