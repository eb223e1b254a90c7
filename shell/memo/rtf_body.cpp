#include "shell/memo/rtf_body.h"

#include <utility>

#include "runtime/text.h"
#include "shell/memo/rtf_lexer.h"
#include "shell/memo/rtf_words.h"

namespace orm {
namespace {

// One sign that is neither a letter nor a digit stands for a bullet whatever its shape.
bool IsBulletSign(std::string_view text) {
  while (!text.empty() && (text.back() == '\t' || text.back() == ' ')) text.remove_suffix(1);
  const bool one = Characters(text) == 1;
  const char c = one ? text[0] : ' ';
  return one && (c == 'o' || c < 0 ||
                 !((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')));
}

constexpr std::size_t kLongestListText = 64;

void RefuseTooMany(std::size_t pieces) {
  if (pieces > kMostRichPieces) FailRtf("ha troppi paragrafi o cambi di carattere");
}

}  // namespace

void RtfBody::Append(std::string_view text, const RichStyle& style) {
  paragraph_.Append(text, style);
  text_ += text.size();
  if (text_ > kLongestRichText) FailRtf("è troppo lungo");
  if (text_ - textBefore_ > kLongestRichParagraph) FailRtf("ha un paragrafo troppo lungo");
  RefuseTooMany(pieces_ + paragraph_.runs.size());
}

void RtfBody::AppendToListText(std::string_view text) {
  if (reading_.Within(listText_.size(), kLongestListText)) listText_ += text;
}

void RtfBody::EndParagraph(const RichSetting& setting, const RichStyle& style) {
  paragraph_.setting = setting;
  if (IsBulletSign(listText_)) paragraph_.setting.bullet = true;
  if (!listText_.empty() && !paragraph_.setting.bullet) {
    reading_.Lose(kNumbering);
    RichParagraph numbered;
    numbered.Append(listText_, paragraph_.runs.empty() ? style : paragraph_.runs.front().style);
    for (const RichRun& run : paragraph_.runs) numbered.Append(run.text, run.style);
    paragraph_.runs = std::move(numbered.runs);
  }
  listText_.clear();
  textBefore_ = text_;
  pieces_ += 1 + paragraph_.runs.size();
  RefuseTooMany(pieces_);
  reading_.document.paragraphs.push_back(std::exchange(paragraph_, {}));
}

void RtfBody::EndRow(const RichSetting& setting, const RichStyle& style) {
  if (!paragraph_.runs.empty()) {
    std::string& text = paragraph_.runs.back().text;
    if (text.ends_with('\t')) text.pop_back();
    if (text.empty()) paragraph_.runs.pop_back();
  }
  EndParagraph(setting, style);
}

void RtfBody::EndDocument(const RichSetting& setting, const RichStyle& style) {
  if (!paragraph_.runs.empty() || !listText_.empty()) EndParagraph(setting, style);
}

}  // namespace orm
