// The fonts and colours of a rich text file, by the numbers that its words have for them.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/lavagna.h"
#include "shell/memo/rtf.h"

namespace orm {

class RtfTables {
 public:
  explicit RtfTables(RtfReading& reading) : reading_(reading) {}

  // A font of the table begins; text and set of characters that follow are its own.
  void BeginFont(int index);
  void AddToName(int index, std::string_view text);
  void SetCharset(int index, int charset);
  // The usual font of text where the table has none of this number, or one without a name.
  std::string FontName(int index) const;
  // True when the font's bytes are not those of Windows-1252, nor signs of its own.
  bool HasOtherLetters(int index) const;

  // The colour that is being read; an entry without any primary is the usual colour of text.
  void SetPrimary(int Colour::*primary, int shade);
  void EndColour();
  std::optional<Colour> ColourAt(int index) const;

 private:
  struct Font {
    std::string name;
    int charset = 0;
  };
  RtfReading& reading_;
  std::map<int, Font> fonts_;
  std::vector<std::optional<Colour>> colours_;
  std::optional<Colour> colour_;
};

}  // namespace orm
