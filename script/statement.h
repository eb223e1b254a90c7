// The script language: statements of a verb and its words, texts in double quotes, '#' begins a
// comment line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orm {

struct Word {
  std::string text;
  bool quoted = false;
  bool Is(std::string_view bare) const { return !quoted && text == bare; }
};

struct Statement {
  int line = 0;
  std::vector<Word> words;  // never empty
  const std::string& Verb() const { return words[0].text; }
};

// A script that does not hold, with the line that does not.
struct Mismatch {
  int line = 0;
  std::string text;
};

// The statements as they are played: those of one line one after the other, `set A 1 B 2` as two of
// them, what stands between `repeat N` and `end` N times over. Throws Mismatch on a word without
// its closing quote, an unknown verb, a wrong number of words, rounds that are not closed or too
// many.
std::vector<Statement> ParseScript(std::string_view text);

// Whether a text is the expected one, which may end in "…" to tell a beginning.
bool Matches(const std::string& expected, const std::string& actual);

std::string Quoted(const std::string& text);  // as a script writes it

}  // namespace orm
