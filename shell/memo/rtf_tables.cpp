#include "shell/memo/rtf_tables.h"

#include <algorithm>
#include <utility>

#include "dialogs/rich_text/rich_document.h"

namespace orm {
namespace {
constexpr std::size_t kMostEntries = 1000;  // of each table
constexpr std::size_t kLongestName = 64;
}  // namespace

void RtfTables::BeginFont(int index) {
  if (fonts_.contains(index) || reading_.Within(fonts_.size(), kMostEntries)) fonts_[index] = {};
}

void RtfTables::AddToName(int index, std::string_view text) {
  const auto font = fonts_.find(index);
  if (font != fonts_.end() && reading_.Within(font->second.name.size(), kLongestName))
    font->second.name += text;
}

void RtfTables::SetCharset(int index, int charset) {
  const auto font = fonts_.find(index);
  if (font != fonts_.end()) font->second.charset = charset;
}

std::string RtfTables::FontName(int index) const {
  const auto font = fonts_.find(index);
  return font == fonts_.end() || font->second.name.empty() ? RichStyle{}.font : font->second.name;
}

bool RtfTables::HasOtherLetters(int index) const {
  const auto font = fonts_.find(index);
  const int charset = font == fonts_.end() ? 0 : font->second.charset;
  return charset > 2 && charset != 255;
}

void RtfTables::SetPrimary(int Colour::*primary, int shade) {
  if (!colour_) colour_.emplace();
  *colour_.*primary = std::clamp(shade, 0, 255);
}

void RtfTables::EndColour() {
  if (reading_.Within(colours_.size(), kMostEntries))
    colours_.push_back(std::exchange(colour_, std::nullopt));
}

std::optional<Colour> RtfTables::ColourAt(int index) const {
  const auto place = static_cast<std::size_t>(std::max(index, 0));
  return place < colours_.size() ? colours_[place] : std::nullopt;
}

}  // namespace orm
