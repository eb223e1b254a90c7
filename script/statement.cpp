#include "script/statement.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "runtime/numbers.h"

namespace orm {
namespace {

struct Grammar {
  std::string_view verb;
  std::size_t least, most;  // words behind the verb
};

constexpr std::array kGrammar = {
    Grammar{"today", 1, 1},  Grammar{"screen", 2, 2},  Grammar{"copy", 1, 3},
    Grammar{"write", 2, 2},  Grammar{"remove", 1, 1},  Grammar{"start", 0, 0},
    Grammar{"menu", 1, 1},   Grammar{"dialog", 1, 1},  Grammar{"set", 2, 2},
    Grammar{"press", 1, 1},  Grammar{"close", 0, 0},   Grammar{"expect", 2, 2},
    Grammar{"show", 1, 1},   Grammar{"message", 2, 3}, Grammar{"failure", 1, 1},
    Grammar{"starts", 2, 2}, Grammar{"drawing", 2, 2}, Grammar{"compare", 1, 3},
    Grammar{"same", 1, 1},   Grammar{"absent", 1, 1},  Grammar{"picture", 1, 1},
    Grammar{"file", 1, 1},   Grammar{"help", 0, 0},    Grammar{"repeat", 1, 1},
    Grammar{"end", 0, 0}};

constexpr double kMostRounds = 1000;
constexpr std::size_t kMostStatements = 20000;  // of a script with its rounds written out

Word QuotedWord(std::string_view line, std::size_t& at, int number) {
  Word word{{}, true};
  for (++at; at < line.size() && line[at] != '"'; ++at) {
    if (line[at] == '\\' && at + 1 < line.size()) {
      ++at;
      word.text += line[at] == 'n' ? '\n' : line[at];
    } else {
      word.text += line[at];
    }
  }
  if (at >= line.size()) throw Mismatch{number, "manca la virgoletta di chiusura"};
  ++at;
  return word;
}

std::vector<Word> Words(std::string_view line, int number) {
  std::vector<Word> words;
  for (std::size_t at = 0; at < line.size();) {
    if (line[at] == ' ' || line[at] == '\t') {
      ++at;
    } else if (line[at] == '"') {
      words.push_back(QuotedWord(line, at, number));
    } else {
      const auto end = std::min(line.find_first_of(" \t", at), line.size());
      words.push_back({std::string(line.substr(at, end - at)), false});
      at = end;
    }
  }
  return words;
}

void Check(const Statement& statement) {
  const auto rule = std::find_if(kGrammar.begin(), kGrammar.end(),
                                 [&](const Grammar& g) { return g.verb == statement.Verb(); });
  if (rule == kGrammar.end())
    throw Mismatch{statement.line, "istruzione sconosciuta: " + statement.Verb()};
  const std::size_t arguments = statement.words.size() - 1;
  if (arguments < rule->least || arguments > rule->most)
    throw Mismatch{statement.line, "numero di argomenti errato per " + statement.Verb()};
}

// One line of the script: a statement, or the two of a form that is left at once,
// `dialog NAME press BUTTON` and `dialog NAME close`.
void Append(Statement line, std::vector<Statement>& script) {
  const auto& w = line.words;
  if (line.Verb() == "dialog" && w.size() > 2 && (w[2].Is("press") || w[2].Is("close"))) {
    Statement inside{line.line, {w.begin() + 2, w.end()}};
    line.words.resize(2);
    Append(std::move(line), script);
    Append(std::move(inside), script);
    return;
  }
  Check(line);
  script.push_back(std::move(line));
}

// A `repeat` that waits for its `end`: where its statements begin.
struct Round {
  int line = 0;
  std::size_t times = 0, begin = 0;
};

Round BeginRound(const Statement& repeat, std::size_t begin) {
  const double times = ParseNumber(repeat.words[1].text).value_or(0);
  if (times < 1 || times > kMostRounds || times != std::floor(times))
    throw Mismatch{repeat.line, "repeat vuole un numero intero da 1 a 1000"};
  return {repeat.line, static_cast<std::size_t>(times), begin};
}

void WriteOut(const Round& round, int line, std::vector<Statement>& script) {
  if (round.times == 1) return;
  const std::vector<Statement> once(script.begin() + static_cast<std::ptrdiff_t>(round.begin),
                                    script.end());
  if (round.begin + once.size() * round.times > kMostStatements)
    throw Mismatch{line, "troppe ripetizioni"};
  for (std::size_t i = 1; i < round.times; ++i)
    script.insert(script.end(), once.begin(), once.end());
}

}  // namespace

std::vector<Statement> ParseScript(std::string_view text) {
  std::vector<Statement> script;
  std::vector<Round> rounds;
  int number = 0;
  for (std::size_t at = 0; at < text.size();) {
    const auto end = std::min(text.find('\n', at), text.size());
    std::string_view line = text.substr(at, end - at);
    at = end + 1;
    ++number;
    if (line.ends_with('\r')) line.remove_suffix(1);
    const auto first = line.find_first_not_of(" \t");
    if (first == std::string_view::npos || line[first] == '#') continue;
    Append({number, Words(line, number)}, script);
    if (script.back().Verb() == "repeat") {
      rounds.push_back(BeginRound(script.back(), script.size() - 1));
      script.pop_back();
    } else if (script.back().Verb() == "end") {
      script.pop_back();
      if (rounds.empty()) throw Mismatch{number, "end senza repeat"};
      WriteOut(rounds.back(), number, script);
      rounds.pop_back();
    }
  }
  if (!rounds.empty()) throw Mismatch{rounds.back().line, "repeat senza end"};
  return script;
}

bool Matches(const std::string& expected, const std::string& actual) {
  static const std::string kRest = "…";
  if (!expected.ends_with(kRest)) return expected == actual;
  return actual.starts_with(expected.substr(0, expected.size() - kRest.size()));
}

std::string Quoted(const std::string& text) {
  std::string out = "\"";
  for (const char c : text) out += c == '\n' ? std::string("\\n") : std::string(1, c);
  return out + "\"";
}

}  // namespace orm
