// The text of a rich text file as it grows paragraph by paragraph.
#pragma once

#include <string>
#include <string_view>

#include "shell/memo/rtf.h"

namespace orm {

class RtfBody {
 public:
  explicit RtfBody(RtfReading& reading) : reading_(reading) {}

  void Append(std::string_view text, const RichStyle& style);
  // What the file shows before a list item.
  void AppendToListText(std::string_view text);

  // `style` is that of a number which stands before no other text.
  void EndParagraph(const RichSetting& setting, const RichStyle& style);
  // Cells of a table end; the tabs that stand for them part.
  void EndRow(const RichSetting& setting, const RichStyle& style);
  // The last end of paragraph closes the text and begins no new one.
  void EndDocument(const RichSetting& setting, const RichStyle& style);

 private:
  RtfReading& reading_;
  RichParagraph paragraph_;
  std::string listText_;
  std::size_t pieces_ = 0;                 // paragraphs that have ended, and their runs
  std::size_t text_ = 0, textBefore_ = 0;  // bytes so far, and before this paragraph
};

}  // namespace orm
