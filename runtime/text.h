// Text in memory is UTF-8 and is counted in characters; in files it is Windows-1252, because files
// travel to and from older installations.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orm {

// Number of characters (code points) of a UTF-8 text.
std::size_t Characters(std::string_view utf8);

// The part of `utf8` from character `first` (0-based), `count` characters long.
std::string Middle(std::string_view utf8, std::size_t first, std::size_t count = std::string::npos);

// The first and the last `count` characters; the whole text where it is shorter.
std::string Left(std::string_view utf8, std::size_t count);
std::string Right(std::string_view utf8, std::size_t count);

std::string TrimRight(std::string_view text);  // without trailing blanks
std::string Blanks(std::size_t count);

// Capitals of the letters that Windows-1252 has, accented ones included.
std::string Capitals(std::string_view utf8);

// Bytes of a file to text. The five bytes without a character in Windows-1252 and the control
// characters other than tab and line ends are a RuntimeFailure, and so is a text that is plainly
// UTF-8: every mark of a binary or wrongly encoded file.
std::string FromWindows1252(std::string_view bytes);

// Text to bytes of a file. A character that Windows-1252 lacks is a RuntimeFailure.
std::string ToWindows1252(std::string_view utf8);

// True when the character can be stored: an entry control takes no other.
bool FitsWindows1252(char32_t character);

// Decodes the character that starts at `position` and moves `position` behind it; U+FFFD for a
// broken sequence.
char32_t NextCharacter(std::string_view utf8, std::size_t& position);
void AppendCharacter(std::string& utf8, char32_t character);

}  // namespace orm
