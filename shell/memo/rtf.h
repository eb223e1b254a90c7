// Rich text files (RTF), as far as a memo needs them: paragraphs, bold, italic, underline, fonts,
// sizes, colours, alignment, indents, spacing, tabs, bullets and every character.
//
// Read and written again, a document keeps all that its model holds. What a file has beyond that
// is named at reading, so that a person can decide before the file is replaced.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dialogs/rich_text/rich_document.h"

namespace orm {

struct RtfReading {
  RichDocument document;
  std::vector<std::string> losses;  // what the model cannot hold, in Italian, each once
  void Lose(const char* what);      // names a loss
  // False, and named as a loss, where a count has reached what a memo can have.
  bool Within(std::size_t now, std::size_t most);
};

// A text that is not RTF, ends too early or is damaged is a RuntimeFailure. A document with more
// than a hundred groups within each other, 50,000 paragraphs and stretches of one look, or more
// text than a window shows in time counts as damaged; tabs, fonts and colours beyond all use are
// left out as losses, so that no file fills the memory.
RtfReading ReadRtf(std::string_view bytes);

// Seven-bit text with CRLF.
std::string WriteRtf(const RichDocument& document);

// Fonts whose characters are signs of their own and have no place in the usual set.
bool IsSymbolFont(std::string_view font);

}  // namespace orm
