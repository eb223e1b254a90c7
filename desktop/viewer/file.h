// A text file as it stands on the disk: its text, its encoding and its line ends, so that saving
// gives back every byte that nobody touched.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "runtime/folder.h"

namespace orm {

enum class TextEncoding { Windows1252, Utf8 };
enum class LineEnd { CrLf, Lf, Cr };

struct TextFormat {
  TextEncoding encoding = TextEncoding::Windows1252;
  bool byteOrderMark = false;
  LineEnd lineEnd = LineEnd::CrLf;
};

// Stand-ins, in the text in memory, for line ends that are not the file's usual one: a line feed
// alone (reports have it between the lines of some tables) breaks the line, a carriage return alone
// is shown as a sign. Both go back to the file as they came.
inline constexpr std::string_view kLoneLineFeed = "\u2028";
inline constexpr std::string_view kLoneReturn = "\u240D";

struct DecodedText {
  std::string text;  // UTF-8, '\n' at the file's usual line ends
  TextFormat format;
};

// UTF-8 where the bytes can be nothing else, Windows-1252 otherwise. Bytes that are no text are a
// RuntimeFailure.
DecodedText DecodeText(std::string_view bytes);

// A text that was being written may be beyond what a file of it could hold; far beyond it the
// window would be busy for minutes. UTF-8 with '\n' at line ends.
bool CanBeShown(std::string_view text);

// Refuses, as a RuntimeFailure, bytes that this program would not open again as the same text.
void CheckOpensAgain(std::string_view bytes, const TextFormat& format);

// The bytes of a text. A character that the encoding lacks is a RuntimeFailure.
std::string EncodeText(std::string_view text, const TextFormat& format);

// The first character that the encoding of the file lacks, with its line counted from 1.
struct LackingCharacter {
  std::string character;
  int line = 1;
};
std::optional<LackingCharacter> FirstLackingCharacter(std::string_view text,
                                                      const TextFormat& format);

// What a person reads of it: "Windows-1252, CRLF".
std::string FormatName(const TextFormat& format);

// A document with looks, by its name or, where the name does not say, by how it begins.
bool IsRichText(const std::string& path);

// A path taken apart into its folder and its bare name.
struct FilePlace {
  WorkFolder folder;
  std::string name;

  static FilePlace Of(const std::string& path);
  std::string Path() const { return folder.PathOf(name); }
  std::string Read() const { return folder.Read(name); }
  void Replace(std::string_view bytes) const;  // a missing folder is named
};

// A copy in place of its own original is a RuntimeFailure.
void RefuseSameFile(const FilePlace& original, const FilePlace& copy);

}  // namespace orm
