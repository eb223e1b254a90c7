#include "runtime/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "runtime/failure.h"

namespace orm {
namespace {

// The characters of bytes 0x80 to 0x9F, where Windows-1252 differs from Latin-1; 0 has none.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// The byte of a character, or -1.
int ByteOf(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
  for (std::size_t i = 0; i < kUpperControls.size(); ++i)
    if (kUpperControls[i] == c && c != 0) return static_cast<int>(0x80 + i);
  return -1;
}

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// A text written as UTF-8 by another program reads as pairs like "Ã¨": bytes that form whole
// sequences of characters which all exist in Windows-1252. No Italian text has such pairs by
// chance; one like «CAFFÈ» decodes to a letter that Windows-1252 lacks and is left alone.
bool IsPlainlyUtf8(std::string_view bytes) {
  bool found = false;
  for (std::size_t i = 0; i < bytes.size();) {
    if (static_cast<unsigned char>(bytes[i]) < 0x80) {
      ++i;
      continue;
    }
    const std::size_t start = i;
    const char32_t c = NextCharacter(bytes, i);
    if (c == 0xFFFD || i - start < 2 || ByteOf(c) < 0) return false;
    found = true;
  }
  return found;
}

// Most of a text: what has one byte, and the same, in Windows-1252 and in UTF-8.
bool IsTheSameInBoth(char c) { return c >= ' ' && c <= '~'; }

}  // namespace

char32_t NextCharacter(std::string_view s, std::size_t& i) {
  const auto lead = static_cast<unsigned char>(s[i++]);
  if (lead < 0x80) return lead;
  int more = 0;
  char32_t c = 0;
  char32_t least = 0;
  if (lead >= 0xC2 && lead <= 0xDF) {
    more = 1, c = lead & 0x1F, least = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    more = 2, c = lead & 0x0F, least = 0x800;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    more = 3, c = lead & 0x07, least = 0x10000;
  } else {
    return 0xFFFD;
  }
  std::size_t j = i;
  for (; more > 0; --more, ++j) {
    if (j >= s.size() || !IsContinuation(static_cast<unsigned char>(s[j]))) return 0xFFFD;
    c = (c << 6) | (static_cast<unsigned char>(s[j]) & 0x3F);
  }
  if (c < least || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return 0xFFFD;
  i = j;
  return c;
}

void AppendCharacter(std::string& out, char32_t c) {
  const auto byte = [&out](char32_t value) { out += static_cast<char>(value); };
  if (c < 0x80) {
    byte(c);
  } else if (c < 0x800) {
    byte(0xC0 | (c >> 6)), byte(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    byte(0xE0 | (c >> 12)), byte(0x80 | ((c >> 6) & 0x3F)), byte(0x80 | (c & 0x3F));
  } else {
    byte(0xF0 | (c >> 18)), byte(0x80 | ((c >> 12) & 0x3F));
    byte(0x80 | ((c >> 6) & 0x3F)), byte(0x80 | (c & 0x3F));
  }
}

std::size_t Characters(std::string_view s) {
  std::size_t n = 0;
  for (const char c : s) n += !IsContinuation(static_cast<unsigned char>(c));
  return n;
}

std::string Middle(std::string_view s, std::size_t first, std::size_t count) {
  std::size_t i = 0;
  for (; i < s.size() && first > 0; --first) NextCharacter(s, i);
  const std::size_t begin = i;
  for (; i < s.size() && count > 0; --count) NextCharacter(s, i);
  return std::string(s.substr(begin, i - begin));
}

std::string Left(std::string_view s, std::size_t count) { return Middle(s, 0, count); }

std::string Right(std::string_view s, std::size_t count) {
  const std::size_t n = Characters(s);
  return n <= count ? std::string(s) : Middle(s, n - count);
}

std::string TrimRight(std::string_view s) {
  const auto last = s.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string() : std::string(s.substr(0, last + 1));
}

std::string Blanks(std::size_t count) { return std::string(count, ' '); }

std::string Capitals(std::string_view s) {
  std::string out;
  for (std::size_t i = 0; i < s.size();) {
    char32_t c = NextCharacter(s, i);
    if ((c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) c -= 0x20;
    if (c == 0xFF) c = 0x178;
    if (c == 0x161 || c == 0x153 || c == 0x17E) c -= 1;
    AppendCharacter(out, c);
  }
  return out;
}

std::string FromWindows1252(std::string_view bytes) {
  if (IsPlainlyUtf8(bytes))
    throw RuntimeFailure("Il testo non è in codifica Windows-1252 ma in UTF-8.");
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 8);
  for (auto at = bytes.begin(); at != bytes.end(); ++at) {
    const auto other = std::find_if_not(at, bytes.end(), IsTheSameInBoth);
    out.append(at, other);
    if ((at = other) == bytes.end()) break;
    const auto byte = static_cast<unsigned char>(*at);
    const bool control =
        (byte < 0x20 && byte != '\t' && byte != '\n' && byte != '\r') || byte == 0x7F;
    const char32_t c = byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80] : byte;
    if (control || c == 0)
      throw RuntimeFailure(
          "Il file contiene caratteri che non sono testo (file binario o danneggiato).");
    AppendCharacter(out, c);
  }
  return out;
}

std::string ToWindows1252(std::string_view s) {
  std::string out;
  out.reserve(s.size());
  for (std::size_t i = 0; i < s.size();) {
    const std::size_t start = i;
    const int byte = ByteOf(NextCharacter(s, i));
    if (byte < 0)
      throw RuntimeFailure("Il carattere \"" + std::string(s.substr(start, i - start)) +
                           "\" non può essere scritto nei file della procedura.");
    out += static_cast<char>(byte);
  }
  return out;
}

bool FitsWindows1252(char32_t c) { return ByteOf(c) >= 0; }

}  // namespace orm
