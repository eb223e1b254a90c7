// A text with looks: paragraphs of runs. Plain values, without file and without screen.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "dialogs/lavagna.h"

namespace orm {

// How characters look.
struct RichStyle {
  std::string font = "Times New Roman";
  int halfPoints = 24;
  bool bold = false, italic = false, underline = false;
  std::optional<Colour> colour = std::nullopt;  // without: the usual colour of text
  bool operator==(const RichStyle&) const = default;
};

// A stretch of characters that look the same. "\t" is a tab, "\n" a new line in the paragraph.
struct RichRun {
  std::string text;
  RichStyle style;
  bool operator==(const RichRun&) const = default;
};

// How a paragraph stands. Lengths in twips, 1440 an inch.
struct RichSetting {
  enum class Alignment { Left, Centre, Right, Justified };
  Alignment alignment = Alignment::Left;
  int left = 0, right = 0;  // indents
  int first = 0;            // of the first line, added to the left one
  int before = 0, after = 0;
  bool bullet = false;
  std::vector<int> tabs;  // positions in ascending order
  bool operator==(const RichSetting&) const = default;
};

struct RichParagraph {
  RichSetting setting;
  std::vector<RichRun> runs;  // none in an empty paragraph

  // Adds text behind; joins it to the last run if that looks the same.
  void Append(std::string_view text, const RichStyle& style);
  bool operator==(const RichParagraph&) const = default;
};

// What a window of rich text shows in time; no memo comes near. In bytes.
inline constexpr std::size_t kLongestRichText = 1'000'000;
inline constexpr std::size_t kLongestRichParagraph = 20'000;
inline constexpr int kMostRichPieces = 50'000;  // paragraphs, and runs of one look

struct RichDocument {
  std::vector<RichParagraph> paragraphs;
  // Page measures that a file brought along, by their name: kept for the next save.
  std::vector<std::pair<std::string, int>> page;
  bool operator==(const RichDocument&) const = default;
};

RichDocument PlainDocument(std::string_view text, const RichStyle& style = {});
std::string PlainText(const RichDocument& document);  // paragraphs separated by "\n"

}  // namespace orm
