// Numbers: the text that cuts, patterns, and what a person types or pastes into a field.
#include <algorithm>
#include <cstring>

#include "dialogs/number_entry.h"
#include "tariff/money.h"
#include "tests/fuzz/file_fuzzer.h"

namespace {

using orm::fuzz::Require;

void CheckText(double value, int decimali) {
  try {
    double taglio = value;
    const std::string testo = orm::FormattaNumero(taglio, decimali);
    Require(!testo.empty() && testo.find_first_not_of("-0123456789., ") == std::string::npos,
            "un numero si scrive con cifre");
    Require(std::isfinite(taglio), "il valore tagliato è un numero");
    const auto read = orm::ParseNumber(orm::NumberText(value));
    Require(read && std::fabs(*read - value) <= 1e-14 * std::fabs(value),
            "il testo di un numero si rilegge");
    orm::FormatPattern(value, "#,##0.00");
    orm::RoundOnText(value, 3);
  } catch (const orm::RuntimeFailure& failure) {
    Require(!failure.Reason().empty(), "il messaggio ha una ragione");
  }
}

void CheckEntry(std::string_view text, const orm::NumberLimits& limits) {
  orm::AdmitsDraft(text, limits);
  const orm::NumberReading reading = orm::ReadNumber(text, limits);
  Require(reading.value.has_value() == reading.objection.empty(), "un valore oppure una ragione");
  if (!reading.value) return;
  const double value = *reading.value;
  Require(value == 0 || (value >= limits.least && value <= limits.most), "il valore è nei limiti");
  Require(orm::ReadNumber(orm::ShownNumber(value, limits), limits).value == value,
          "il numero mostrato si rilegge uguale");
  const std::string draft = orm::DraftNumber(value, limits);
  Require(orm::AdmitsDraft(draft, limits), "il numero da correggere si può scrivere");
  Require(orm::ReadNumber(draft, limits).value == value,
          "il numero da correggere si rilegge uguale");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  double value = 0;
  if (size > sizeof value) {
    std::memcpy(&value, data, sizeof value);
    CheckText(value, static_cast<std::int8_t>(data[sizeof value]));
  }
  const std::string_view text = orm::fuzz::Text(data, size);
  if (const auto typed = orm::ParseNumber(text)) CheckText(*typed, -2);
  CheckEntry(text, {.most = 99999999.99, .decimals = 2, .trailingZeros = true});
  CheckEntry(text, {.most = 99999999999.0, .decimals = 0});
  CheckEntry(text, {.least = -1000, .most = 1000, .decimals = 6});
  return 0;
}
