#include "script/statement.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "runtime/numbers.h"

namespace orm {
namespace {

using Words = std::vector<Word>;

struct Grammar {
  std::string_view verb;
  std::size_t least, most;      // words behind the verb
  std::string_view joint = {};  // of a file's second name; empty: none
  bool several = false;         // the words may come again, for as many statements
};

constexpr std::array kGrammar = {Grammar{"today", 1, 1},
                                 Grammar{"screen", 2, 2},
                                 Grammar{"copy", 1, 1, "as", true},
                                 Grammar{"write", 2, 2},
                                 Grammar{"remove", 1, 1, {}, true},
                                 Grammar{"start", 0, 1},
                                 Grammar{"menu", 1, 1},
                                 Grammar{"dialog", 1, 1},
                                 Grammar{"set", 2, 2, {}, true},
                                 Grammar{"press", 1, 1},
                                 Grammar{"close", 0, 0},
                                 Grammar{"expect", 2, 2, {}, true},
                                 Grammar{"show", 1, 1},
                                 Grammar{"message", 2, 3},
                                 Grammar{"failure", 1, 1},
                                 Grammar{"starts", 2, 2},
                                 Grammar{"drawing", 2, 2},
                                 Grammar{"compare", 1, 1, "with", true},
                                 Grammar{"same", 1, 1, {}, true},
                                 Grammar{"absent", 1, 1, {}, true},
                                 Grammar{"picture", 1, 1},
                                 Grammar{"file", 1, 1},
                                 Grammar{"help", 0, 0},
                                 Grammar{"repeat", 1, 1},
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

Words WordsOf(std::string_view line, int number) {
  Words words;
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

const Grammar* RuleOf(const Word& word) {
  const auto rule = std::find_if(kGrammar.begin(), kGrammar.end(),
                                 [&](const Grammar& g) { return word.Is(g.verb); });
  return rule == kGrammar.end() ? nullptr : &*rule;
}

// How many of the words behind a verb, the first of them at `at`, belong to one statement.
std::size_t Arguments(const Grammar& rule, const Words& words, std::size_t at) {
  const bool renamed = !rule.joint.empty() && at + 1 < words.size() && words[at + 1].Is(rule.joint);
  return renamed ? 3 : rule.several ? rule.least : words.size() - at;
}

// A verb with its words: one statement, or one for each of several things that it is done with.
void AppendVerb(int line, const Words& words, std::vector<Statement>& script) {
  const Grammar* rule = RuleOf(words[0]);
  if (rule == nullptr) throw Mismatch{line, "istruzione sconosciuta: " + words[0].text};
  std::size_t at = 1;
  do {
    const std::size_t count = Arguments(*rule, words, at);
    const bool renamed = !rule->joint.empty() && count == 3;
    if (count < rule->least || (count > rule->most && !renamed) || at + count > words.size())
      throw Mismatch{line, "numero di argomenti errato per " + words[0].text};
    Words statement = {words[0]};
    for (const std::size_t end = at + count; at < end; ++at) statement.push_back(words[at]);
    script.push_back({line, std::move(statement)});
  } while (at < words.size());
}

// A line of the script: each bare word that is a verb begins a statement.
std::vector<Statement> StatementsOf(int line, const Words& words) {
  std::vector<Statement> statements;
  for (auto verb = words.begin(); verb != words.end();) {
    const auto next = std::find_if(verb + 1, words.end(), RuleOf);
    AppendVerb(line, {verb, next}, statements);
    verb = next;
  }
  return statements;
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
    for (Statement& statement : StatementsOf(number, WordsOf(line, number)))
      if (statement.Verb() == "repeat") {
        rounds.push_back(BeginRound(statement, script.size()));
      } else if (statement.Verb() == "end") {
        if (rounds.empty()) throw Mismatch{number, "end senza repeat"};
        WriteOut(rounds.back(), number, script);
        rounds.pop_back();
      } else {
        script.push_back(std::move(statement));
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
