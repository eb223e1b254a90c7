#include "shell/help/help_books.h"

#include <algorithm>
#include <array>

#include "runtime/text.h"
#include "shell/help/help_texts.h"

namespace orm {
namespace {

constexpr std::string_view kContents = "manuale/indice.md";
constexpr std::string_view kCommandsBegin = "<!-- comandi:", kCommandsEnd = "-->";

struct BookEntry {
  const char* file;
  const char* title;
  std::string_view pages;  // a page, or the folder of the manual
};
constexpr std::array kBooks = {
    BookEntry{"avvertenze.hlp", "NOTE OPERATIVE", "help/avvertenze.md"},
    BookEntry{kManuale, "MANUALE ORM2002", "manuale/"},
    BookEntry{"NORME.HLP", "NORME TARIFFARIE", "help/norme.md"},
    BookEntry{"inarcassa.hlp", "NORME INARCASSA", "help/inarcassa.md"},
};

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words(1);
  for (const char c : text)
    if (c != ' ' && c != '\t')
      words.back() += c;
    else if (!words.back().empty())
      words.emplace_back();
  if (words.back().empty()) words.pop_back();
  return words;
}

std::string_view TextOf(std::string_view file) {
  for (const HelpText& text : HelpTexts())
    if (text.file == file) return text.text;
  return {};
}

// The manual's pages, first those of its list of contents: "## Group", "- [Title](file.md)".
std::vector<HelpPage> ManualPages() {
  std::vector<HelpPage> pages;
  const auto add = [&pages](std::string_view file, const std::string& group) {
    pages.push_back(ReadHelpPage(file, TextOf(file)));
    pages.back().group = group;
  };
  std::string group;
  for (const std::string_view line : Lines(TextOf(kContents))) {
    if (line.starts_with("## ")) group = line.substr(3);
    const auto from = line.find("]("), to = line.find(')', from);
    if (!line.starts_with("- [") || to == std::string_view::npos) continue;
    const std::string file = "manuale/" + std::string(line.substr(from + 2, to - from - 2));
    if (!TextOf(file).empty()) add(file, group);
  }
  for (const HelpText& text : HelpTexts()) {
    const bool listed = std::ranges::any_of(
        pages, [&text](const HelpPage& page) { return page.file == text.file; });
    if (text.file.starts_with("manuale/") && text.file != kContents && !listed) add(text.file, "");
  }
  return pages;
}

// What a person reads of a line: no marks of Markdown, of a link its words alone, one blank between
// words.
std::string PlainLine(std::string_view line) {
  std::string plain;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '!' && line.substr(i).starts_with("![")) continue;
    if (line[i] == ']' && i + 1 < line.size() && line[i + 1] == '(')
      i = std::min(line.find(')', i), line.size());
    else if (line[i] == ' ' || line[i] == '|')
      plain += plain.empty() || plain.back() == ' ' ? "" : " ";
    else if (std::string_view("*`[]#>").find(line[i]) == std::string_view::npos)
      plain += line[i];
  }
  return plain;
}

// The text of a page as one line for each of its parts, with the section in which each stands.
struct PlainPart {
  std::string section, text;
};
std::vector<PlainPart> PlainParts(const HelpPage& page) {
  std::vector<PlainPart> parts(1);
  for (const std::string_view line : Lines(page.text)) {
    if (line.starts_with("# ")) continue;
    if (line.starts_with("## ")) {
      parts.push_back({std::string(line.substr(3)), ""});
    } else if (const std::string plain = PlainLine(line);
               plain.find_first_not_of(" -:") != std::string::npos) {
      parts.back().text += (parts.back().text.empty() ? "" : " ") + plain;
    }
  }
  return parts;
}

bool HoldsAll(const std::string& text, const std::vector<std::string>& words) {
  return std::ranges::all_of(
      words, [&text](const std::string& word) { return text.find(word) != std::string::npos; });
}

// About as much as a line of the list shows, from whole words.
std::string Excerpt(const std::string& text, const std::string& word) {
  constexpr std::size_t kBefore = 30, kLength = 120;
  const std::string plain = PlainLetters(text);
  const auto found = plain.find(word);
  const std::size_t at = found == std::string::npos ? 0 : Characters(plain.substr(0, found));
  std::size_t first = at < kBefore ? 0 : at - kBefore;
  std::string part = Middle(text, first, kLength);
  if (first > 0) part = "…" + part.substr(std::min(part.find(' '), part.size()));
  if (first + kLength < Characters(text)) part = part.substr(0, part.rfind(' ')) + " …";
  return part;
}

struct Found {
  int rank;  // 0 title, 1 heading, 2 text
  HelpHit hit;
};

bool SearchPage(const HelpPage& page, const std::vector<std::string>& words, Found& found) {
  const std::vector<PlainPart> parts = PlainParts(page);
  std::string all = PlainLetters(page.title);
  for (const PlainPart& part : parts) all += "\n" + PlainLetters(part.section + "\n" + part.text);
  if (!HoldsAll(all, words)) return false;
  found.rank = HoldsAll(PlainLetters(page.title), words) ? 0 : 2;
  const PlainPart* best = &parts.front();
  for (const PlainPart& part : parts) {
    if (HoldsAll(PlainLetters(part.section), words)) {
      found.rank = std::min(found.rank, 1);
      best = &part;
      break;
    }
    const auto holds = [&](const PlainPart& p) {
      return PlainLetters(p.text).find(words.front()) != std::string::npos;
    };
    if (!holds(*best) && holds(part)) best = &part;
  }
  found.hit.section = found.rank == 0 ? "" : best->section;
  found.hit.excerpt = Excerpt(best->text, words.front());
  return true;
}

}  // namespace

bool HelpPage::Describes(std::string_view command) const {
  return std::ranges::any_of(commands, [command](const std::string& named) {
    return named.ends_with('*') ? command.starts_with(named.substr(0, named.size() - 1))
                                : command == named;
  });
}

HelpPage ReadHelpPage(std::string_view file, std::string_view markdown) {
  HelpPage page{std::string(file), "", "", "", {}, {}};
  for (const std::string_view line : Lines(markdown)) {
    if (line.starts_with(kCommandsBegin)) {
      const auto end = line.find(kCommandsEnd);
      page.commands = Words(line.substr(0, end).substr(kCommandsBegin.size()));
      continue;
    }
    if (line.starts_with("# ") && page.title.empty()) page.title = line.substr(2);
    if (line.starts_with("## ")) page.sections.emplace_back(line.substr(3));
    page.text += std::string(line) + "\n";
  }
  return page;
}

std::vector<HelpBook> HelpBooks() {
  std::vector<HelpBook> books;
  for (const BookEntry& entry : kBooks) {
    HelpBook& book = books.emplace_back(HelpBook{entry.file, entry.title, {}});
    if (entry.pages.ends_with('/'))
      book.pages = ManualPages();
    else
      book.pages.push_back(ReadHelpPage(entry.pages, TextOf(entry.pages)));
  }
  return books;
}

std::string HelpFor(std::string_view command) {
  for (const HelpPage& page : ManualPages())
    if (page.Describes(command)) return page.file;
  return kManuale;
}

std::string PlainLetters(std::string_view utf8) {
  using namespace std::string_view_literals;
  constexpr std::string_view kPlain =
      "AAAAAA\0CEEEEIIII\0NOOOOO\0\0UUUUY"sv;  // of À to Ý, \0 stays as it is
  std::string plain;
  const std::string capitals = Capitals(utf8);
  for (std::size_t at = 0; at < capitals.size();) {
    char32_t letter = NextCharacter(capitals, at);
    if (letter >= 0xC0 && letter < 0xC0 + kPlain.size() && kPlain[letter - 0xC0] != '\0')
      letter = static_cast<unsigned char>(kPlain[letter - 0xC0]);
    AppendCharacter(plain, letter);
  }
  return plain;
}

std::vector<HelpHit> SearchHelp(const std::vector<HelpBook>& books, std::string_view sought) {
  const std::vector<std::string> words = Words(PlainLetters(sought));
  std::vector<Found> found;
  if (words.empty()) return {};
  for (std::size_t b = 0; b < books.size(); ++b)
    for (std::size_t p = 0; p < books[b].pages.size(); ++p) {
      Found here{2, {b, p, "", ""}};
      if (SearchPage(books[b].pages[p], words, here)) found.push_back(std::move(here));
    }
  std::ranges::stable_sort(found, {}, &Found::rank);
  std::vector<HelpHit> hits;
  for (Found& each : found) hits.push_back(std::move(each.hit));
  return hits;
}

}  // namespace orm
