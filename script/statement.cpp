#include "script/statement.h"

#include <algorithm>
#include <array>
#include <cctype>

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
    Grammar{"file", 1, 1},   Grammar{"help", 0, 0}};

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

}  // namespace

std::vector<Statement> ParseScript(std::string_view text) {
  std::vector<Statement> script;
  int number = 0;
  for (std::size_t at = 0; at < text.size();) {
    const auto end = std::min(text.find('\n', at), text.size());
    std::string_view line = text.substr(at, end - at);
    at = end + 1;
    ++number;
    if (line.ends_with('\r')) line.remove_suffix(1);
    const auto first = line.find_first_not_of(" \t");
    if (first == std::string_view::npos || line[first] == '#') continue;
    script.push_back({number, Words(line, number)});
    Check(script.back());
  }
  return script;
}

}  // namespace orm
