// The signs of a rich text file, one after the other.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orm {

struct RtfSign {
  enum class Kind { Open, Close, Word, Byte, End };
  Kind kind = Kind::End;
  // Of a Word: its letters, or the one sign of "\~", "\*"; and its number, if it has one.
  std::string_view word;
  std::optional<int> number;
  unsigned char byte = 0;  // of a Byte: in the file's own set of characters
};

class RtfLexer {
 public:
  explicit RtfLexer(std::string_view bytes) : bytes_(bytes) {}
  // Line ends between signs are passed over. Damage is a RuntimeFailure.
  RtfSign Next();
  // Passes over raw bytes, as those of a picture.
  void Skip(int count);
  // True when nothing but line ends, blanks and zeros is left.
  bool OnlyPaddingLeft() const;

 private:
  RtfSign Control();
  RtfSign Hexadecimal();
  std::optional<int> Number();

  std::string_view bytes_;
  std::size_t at_ = 0;
};

// Where a damaged file is known to be damaged.
[[noreturn]] void FailRtf(const std::string& reason);

}  // namespace orm
