// A control for a text with looks.
#include "dialogs/rich_text/rich_text.h"

#include <algorithm>
#include <utility>

namespace orm {

RichTextBox::RichTextBox(Form& form, std::string name, std::string caption)
    : Control(form, Kind::RichText, std::move(name), std::move(caption)) {}

void RichTextBox::SetDocument(RichDocument document) {
  document_ = std::move(document);
  edited_ = false;
  Changed();
}

void RichTextBox::Edit(RichDocument document) {
  if (document == document_) return;
  document_ = std::move(document);
  edited_ = true;
  Changed();
}

void RichTextBox::SetReadOnly(bool readOnly) {
  if (std::exchange(readOnly_, readOnly) != readOnly) Refresh();
}

std::string RichTextBox::Enter(std::string_view text) {
  if (readOnly_) return "Il testo si può solo leggere.";
  const auto control = [](unsigned char c) {
    return (c < 0x20 && c != '\n' && c != '\t') || c == 0x7F;
  };
  if (std::any_of(text.begin(), text.end(), control))
    return "Il testo contiene un carattere che non si può scrivere.";
  RichStyle style;
  const auto& paragraphs = document_.paragraphs;
  if (!paragraphs.empty() && !paragraphs.front().runs.empty())
    style = paragraphs.front().runs.front().style;
  RichDocument document = PlainDocument(text, style);
  document.page = document_.page;
  Edit(std::move(document));
  return {};
}

}  // namespace orm
