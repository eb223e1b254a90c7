// What is typed or read whole: scripts, rich text, numbers.
#include <cstdint>
#include <cstring>

#include "dialogs/number_entry.h"
#include "runtime/numbers.h"
#include "script/statement.h"
#include "shell/memo/rtf.h"
#include "tariff/money.h"
#include "tests/fuzz/fuzzer.h"

namespace orm::fuzz {
namespace {

std::string Written(const std::vector<Statement>& script) {
  std::string text;
  for (const Statement& statement : script) {
    for (const Word& word : statement.words) {
      if (!word.quoted) {
        text += word.text + " ";
        continue;
      }
      text += '"';
      for (const char c : word.text)
        text += c == '\n'               ? "\\n"
                : c == '"' || c == '\\' ? std::string("\\") + c
                                        : std::string(1, c);
      text += "\" ";
    }
    text += '\n';
  }
  return text;
}

// The script language: statements or a mismatch with its line, and statements written again are the
// same.
void Copione(std::string_view input) {
  std::vector<Statement> script;
  try {
    script = ParseScript(input);
  } catch (const Mismatch& mismatch) {
    Require(mismatch.line > 0 && !mismatch.text.empty(), "l'errore ha riga e ragione");
    return;
  }
  const std::vector<Statement> again = ParseScript(Written(script));
  Require(again.size() == script.size(), "le istruzioni riscritte sono quante erano");
  for (std::size_t i = 0; i < script.size(); ++i) {
    Require(again[i].words.size() == script[i].words.size(), "ogni istruzione ha le sue parole");
    for (std::size_t j = 0; j < script[i].words.size(); ++j)
      Require(again[i].words[j].text == script[i].words[j].text, "ogni parola è la stessa");
  }
}

// MEMO.RTF: rich text read, written and read again is the same document, in the same bytes.
void Memo(std::string_view input) {
  RichDocument document;
  try {
    document = ReadRtf(input).document;
  } catch (const RuntimeFailure& failure) {
    Require(!failure.Reason().empty(), "il messaggio ha una ragione");
    return;
  }
  const std::string written = WriteRtf(document);
  const RtfReading again = ReadRtf(written);
  Require(again.losses.empty(), "il testo riscritto non perde nulla");
  Require(again.document == document, "il testo riletto è uguale");
  Require(WriteRtf(again.document) == written, "il file riscritto resta uguale");
  PlainText(document);
}

void CheckText(double value, int decimali) {
  try {
    double taglio = value;
    const std::string testo = FormattaNumero(taglio, decimali);
    Require(!testo.empty() && testo.find_first_not_of("-0123456789., ") == std::string::npos,
            "un numero si scrive con cifre");
    Require(std::isfinite(taglio), "il valore tagliato è un numero");
    const auto read = ParseNumber(NumberText(value));
    Require(read && std::fabs(*read - value) <= 1e-14 * std::fabs(value),
            "il testo di un numero si rilegge");
    FormatPattern(value, "#,##0.00");
    RoundOnText(value, 3);
  } catch (const RuntimeFailure& failure) {
    Require(!failure.Reason().empty(), "il messaggio ha una ragione");
  }
}

void CheckEntry(std::string_view text, const NumberLimits& limits) {
  AdmitsDraft(text, limits);
  const NumberReading reading = ReadNumber(text, limits);
  Require(reading.value.has_value() == reading.objection.empty(), "un valore oppure una ragione");
  if (AdmitsDraft(text, limits) && text.find('.') == std::string_view::npos) {
    std::string grouped(text);
    std::size_t caret = grouped.size();
    GroupThousands(grouped, caret);
    Require(caret == grouped.size(), "il cursore resta in fondo");
    Require(ReadNumber(grouped, limits).value == reading.value, "i punti non cambiano il numero");
  }
  if (!reading.value) return;
  const double value = *reading.value;
  Require(value == 0 || (value >= limits.least && value <= limits.most), "il valore è nei limiti");
  Require(ReadNumber(ShownNumber(value, limits), limits).value == value,
          "il numero mostrato si rilegge uguale");
  const std::string draft = DraftNumber(value, limits);
  Require(AdmitsDraft(draft, limits), "il numero da correggere si può scrivere");
  Require(ReadNumber(draft, limits).value == value, "il numero da correggere si rilegge uguale");
}

// Numbers: the text that cuts, patterns, and what a person types or pastes into a field.
void Numero(std::string_view input) {
  double value = 0;
  if (input.size() > sizeof value) {
    std::memcpy(&value, input.data(), sizeof value);
    CheckText(value, static_cast<std::int8_t>(input[sizeof value]));
  }
  if (const auto typed = ParseNumber(input)) CheckText(*typed, -2);
  CheckEntry(input, {.most = 99999999.99, .decimals = 2, .trailingZeros = true});
  CheckEntry(input, {.most = 99999999999.0, .decimals = 0});
  CheckEntry(input, {.least = -1000, .most = 1000, .decimals = 6});
}

}  // namespace

Formats TextFormats() { return {{"copione", Copione}, {"memo", Memo}, {"numero", Numero}}; }

}  // namespace orm::fuzz
