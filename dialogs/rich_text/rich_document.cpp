// A text with looks.
#include "dialogs/rich_text/rich_document.h"

#include <algorithm>

namespace orm {

void RichParagraph::Append(std::string_view text, const RichStyle& style) {
  if (text.empty()) return;
  if (!runs.empty() && runs.back().style == style)
    runs.back().text += text;
  else
    runs.push_back({std::string(text), style});
}

RichDocument PlainDocument(std::string_view text, const RichStyle& style) {
  RichDocument document;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    document.paragraphs.emplace_back().Append(text.substr(at, end - at), style);
    at = end + 1;
  }
  return document;
}

std::string PlainText(const RichDocument& document) {
  std::string text;
  for (const RichParagraph& paragraph : document.paragraphs) {
    if (&paragraph != &document.paragraphs.front()) text += '\n';
    for (const RichRun& run : paragraph.runs) text += run.text;
  }
  return text;
}

}  // namespace orm
