// The help as a person meets it: four books of pages, with contents, the page of each command, and
// a search over all of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orm {

struct HelpPage {
  std::string file;                   // "manuale/coa.md"
  std::string title;                  // its first heading
  std::string group;                  // of the manual's contents; may be empty
  std::string text;                   // Markdown as it is shown
  std::vector<std::string> sections;  // headings of the second level
  std::vector<std::string> commands;  // of the menu, that the page describes; "NAME_*" is a family
  bool Describes(std::string_view command) const;
};

struct HelpBook {
  std::string file;  // the name by which a command opens it, "manuale.hlp"
  std::string title;
  std::vector<HelpPage> pages;
};

inline constexpr const char* kManuale = "manuale.hlp";

// In the order of the help's contents. The manual has its pages in the order of its own list of
// contents, and behind them those that the list does not name.
std::vector<HelpBook> HelpBooks();

// Where a command is described: a page's file, the whole manual for one that no page names.
std::string HelpFor(std::string_view command);

// A page from its text; the line of commands is no part of what is shown.
HelpPage ReadHelpPage(std::string_view file, std::string_view markdown);

// What was found on a page.
struct HelpHit {
  std::size_t book = 0, page = 0;
  std::string section;  // under which the first hit stands; empty above the first
  std::string excerpt;  // one line of plain text around it
};

// The pages that hold every word of what is sought, anywhere, small or capital, with or without
// accents. First those with the words in their title, then in a heading, then in the text.
std::vector<HelpHit> SearchHelp(const std::vector<HelpBook>& books, std::string_view sought);

// Without accents and in capitals, letter for letter.
std::string PlainLetters(std::string_view utf8);

}  // namespace orm
