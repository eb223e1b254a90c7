// The script language: statements or a mismatch with its line, and statements written again are the
// same.
#include "script/statement.h"
#include "tests/fuzz/file_fuzzer.h"

namespace {

std::string Written(const std::vector<orm::Statement>& script) {
  std::string text;
  for (const orm::Statement& statement : script) {
    for (const orm::Word& word : statement.words) {
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using orm::fuzz::Require;
  std::vector<orm::Statement> script;
  try {
    script = orm::ParseScript(orm::fuzz::Text(data, size));
  } catch (const orm::Mismatch& mismatch) {
    Require(mismatch.line > 0 && !mismatch.text.empty(), "l'errore ha riga e ragione");
    return 0;
  }
  const std::vector<orm::Statement> again = orm::ParseScript(Written(script));
  Require(again.size() == script.size(), "le istruzioni riscritte sono quante erano");
  for (std::size_t i = 0; i < script.size(); ++i) {
    Require(again[i].words.size() == script[i].words.size(), "ogni istruzione ha le sue parole");
    for (std::size_t j = 0; j < script[i].words.size(); ++j)
      Require(again[i].words[j].text == script[i].words[j].text, "ogni parola è la stessa");
  }
  return 0;
}
