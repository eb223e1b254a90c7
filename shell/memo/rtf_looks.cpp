#include "shell/memo/rtf_looks.h"

#include <algorithm>

#include "shell/memo/rtf_words.h"

namespace orm {
namespace {

constexpr int kFarthest = 31680;  // twips, 22 inches
constexpr int kGreatestHalfPoints = 3276;
constexpr std::size_t kMostTabs = 64;  // of a paragraph

template <class Row, std::size_t N>
const Row* Find(const Row (&rows)[N], std::string_view word) {
  const auto* found =
      std::find_if(rows, rows + N, [&](const Row& row) { return row.first == word; });
  return found == rows + N ? nullptr : found;
}

}  // namespace

bool TakeCharacterWord(std::string_view word, int number, bool on, const RtfTables& tables,
                       RichStyle& style, RtfReading& reading) {
  if (word == "b") {
    style.bold = on;
  } else if (word == "i") {
    style.italic = on;
  } else if (word == "ulnone") {
    style.underline = false;
  } else if (word == "ul") {
    style.underline = on;
  } else if (word.starts_with("ul") && word != "ulc") {  // dotted, waved and many more
    style.underline = on;
    if (on) reading.Lose(kUnderlines);
  } else if (word == "fs") {
    if (number > 0) style.halfPoints = std::min(number, kGreatestHalfPoints);
  } else if (word == "cf") {
    style.colour = tables.ColourAt(number);
  } else {
    return false;
  }
  return true;
}

bool TakeParagraphWord(std::string_view word, int number, RichSetting& setting,
                       RtfReading& reading) {
  const int length = std::clamp(number, -kFarthest, kFarthest);
  if (const auto* alignment = Find(kAlignments, word)) {
    setting.alignment = alignment->second;
  } else if (const auto* measure = Find(kMeasures, word)) {
    setting.*measure->second = length;
  } else if (word == "pard") {
    setting = {};
  } else if (word == "sl") {
    if (number != 0 && number != 240) reading.Lose(kSpacing);
  } else if (word == "tx") {
    const auto place = std::lower_bound(setting.tabs.begin(), setting.tabs.end(), length);
    const bool known = place != setting.tabs.end() && *place == length;
    if (!known && reading.Within(setting.tabs.size(), kMostTabs))
      setting.tabs.insert(place, length);
  } else {
    return false;
  }
  return true;
}

}  // namespace orm
