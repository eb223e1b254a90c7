// Encoding and line ends of a viewed file, and its place on the disk.
#include "desktop/viewer/file.h"

#include <algorithm>
#include <filesystem>

#include "desktop/text_room.h"
#include "runtime/failure.h"
#include "runtime/text.h"

namespace orm {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
// Bytes of UTF-8: of a line as it is shown, and of one with its usual end, which may have others
// within that are laid out with it.
struct LineBounds {
  std::size_t shown, whole;
  int lines;
};
constexpr LineBounds kOfFiles{kTextRoom.line, 100'000, kTextRoom.lines};
constexpr LineBounds kOfDrafts{200'000, 200'000, 2 * kTextRoom.lines};

// An Italian capital with its accent, the diameter and the times sign, when a closing quote or the
// like follows in Windows-1252, look like one character of two bytes: «CAFFÈ» ends in one.
bool LooksLikeCapitalAndQuote(unsigned char lead) {
  return lead == 0xC8 || lead == 0xC9 || lead == 0xCC || lead == 0xD2 || lead == 0xD7 ||
         lead == 0xD8 || lead == 0xD9;
}

bool IsUtf8(std::string_view bytes) {
  bool certain = false;
  for (std::size_t i = 0; i < bytes.size();) {
    const auto lead = static_cast<unsigned char>(bytes[i]);
    const std::size_t start = i;
    const char32_t c = NextCharacter(bytes, i);
    if (c == 0xFFFD && i - start == 1) return false;
    if (i - start > 2 || (i - start == 2 && !LooksLikeCapitalAndQuote(lead))) certain = true;
  }
  return certain;
}

void RefuseControlCharacters(std::string_view bytes) {
  const auto isControl = [](unsigned char byte) {
    return (byte < 0x20 && byte != '\t' && byte != '\n' && byte != '\r') || byte == 0x7F;
  };
  const auto found = std::find_if(bytes.begin(), bytes.end(), isControl);
  if (found != bytes.end())
    throw RuntimeFailure(
        "Il file contiene caratteri che non sono testo (file binario o danneggiato).")
        .AtLine(1 + static_cast<int>(std::count(bytes.begin(), found, '\n')));
}

// The first line that is too long, or is one too many. What nobody reads would keep the window busy
// for minutes.
std::optional<int> LineBeyond(std::string_view text, const LineBounds& bounds) {
  std::size_t shown = 0, whole = 0;
  int line = 1;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n') {
      shown = whole = 0;
      if (++line > bounds.lines) return line;
    } else if (text.substr(i, kLoneLineFeed.size()) == kLoneLineFeed) {
      shown = 0;
    } else if (++shown > bounds.shown || ++whole > bounds.whole) {
      return line;
    }
  }
  return std::nullopt;
}

void RefuseEndlessText(std::string_view text) {
  const auto line = LineBeyond(text, kOfFiles);
  if (!line) return;
  if (*line > kOfFiles.lines) throw RuntimeFailure("Il file ha troppe righe per essere mostrato.");
  throw RuntimeFailure("Una riga del file è troppo lunga per essere mostrata.").AtLine(*line);
}

LineEnd UsualLineEnd(std::string_view bytes) {
  std::size_t crLf = 0, lf = 0, cr = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n') ++lf;
    if (bytes[i] != '\r') continue;
    if (i + 1 < bytes.size() && bytes[i + 1] == '\n') {
      ++crLf, ++i;
    } else {
      ++cr;
    }
  }
  if (crLf >= lf && crLf >= cr) return LineEnd::CrLf;
  return lf >= cr ? LineEnd::Lf : LineEnd::Cr;
}

std::string_view BytesOf(LineEnd end) {
  if (end == LineEnd::CrLf) return "\r\n";
  return end == LineEnd::Lf ? "\n" : "\r";
}

std::string WithoutLineEnds(std::string_view text, LineEnd usual) {
  const std::string_view end = BytesOf(usual);
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.substr(i, end.size()) == end) {
      out += '\n';
      i += end.size() - 1;
    } else if (text[i] == '\n') {
      out += kLoneLineFeed;
    } else if (text[i] == '\r') {
      out += kLoneReturn;
    } else {
      out += text[i];
    }
  }
  return out;
}

std::string WithLineEnds(std::string_view text, LineEnd usual) {
  std::string out;
  out.reserve(text.size() + text.size() / 32);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n') {
      out += BytesOf(usual);
    } else if (text.substr(i, kLoneLineFeed.size()) == kLoneLineFeed) {
      out += '\n';
      i += kLoneLineFeed.size() - 1;
    } else if (text.substr(i, kLoneReturn.size()) == kLoneReturn) {
      out += '\r';
      i += kLoneReturn.size() - 1;
    } else {
      out += text[i];
    }
  }
  return out;
}

}  // namespace

DecodedText DecodeText(std::string_view bytes) {
  RefuseControlCharacters(bytes);
  DecodedText result;
  result.format.byteOrderMark = bytes.starts_with(kByteOrderMark);
  if (result.format.byteOrderMark) bytes.remove_prefix(kByteOrderMark.size());
  result.format.lineEnd = UsualLineEnd(bytes);
  if (IsUtf8(bytes) || result.format.byteOrderMark) result.format.encoding = TextEncoding::Utf8;
  result.text = result.format.encoding == TextEncoding::Utf8
                    ? WithoutLineEnds(bytes, result.format.lineEnd)
                    : WithoutLineEnds(FromWindows1252(bytes), result.format.lineEnd);
  RefuseEndlessText(result.text);
  return result;
}

bool CanBeShown(std::string_view text) { return !LineBeyond(text, kOfDrafts); }

void CheckOpensAgain(std::string_view bytes, const TextFormat& format) {
  if (bytes.size() > kTextRoom.whole)
    throw RuntimeFailure("Il testo è troppo grande per il suo file.");
  const TextFormat again = DecodeText(bytes).format;
  const bool ascii = std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= 0; });
  if (!ascii && again.encoding != format.encoding)
    throw RuntimeFailure("Riaperto, il testo sarebbe preso per " + FormatName(again) + ".");
}

std::string EncodeText(std::string_view text, const TextFormat& format) {
  std::string out = WithLineEnds(text, format.lineEnd);
  if (format.encoding == TextEncoding::Windows1252) return ToWindows1252(out);
  return format.byteOrderMark ? std::string(kByteOrderMark) + out : out;
}

std::optional<LackingCharacter> FirstLackingCharacter(std::string_view text,
                                                      const TextFormat& format) {
  if (format.encoding == TextEncoding::Utf8) return std::nullopt;
  int line = 1;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t start = i;
    const char32_t c = NextCharacter(text, i);
    const std::string_view character = text.substr(start, i - start);
    if (c == '\n' || character == kLoneLineFeed) {
      ++line;
    } else if (character != kLoneReturn && !FitsWindows1252(c)) {
      return LackingCharacter{std::string(character), line};
    }
  }
  return std::nullopt;
}

std::string FormatName(const TextFormat& format) {
  const std::string encoding =
      format.encoding == TextEncoding::Windows1252 ? "Windows-1252" : "UTF-8";
  if (format.lineEnd == LineEnd::CrLf) return encoding + ", CRLF";
  return encoding + (format.lineEnd == LineEnd::Lf ? ", LF" : ", CR");
}

bool IsRichText(const std::string& path) {
  std::string ending = std::filesystem::path(path).extension().string();
  for (char& c : ending) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  if (ending == ".rtf") return true;
  const FilePlace place = FilePlace::Of(path);
  return place.folder.Exists(place.name) && place.Read().starts_with("{\\rtf");
}

FilePlace FilePlace::Of(const std::string& path) {
  const std::filesystem::path whole = path;
  std::string folder = whole.parent_path().string();
  if (folder.empty()) folder = ".";
  return {WorkFolder(folder), whole.filename().string()};
}

void RefuseSameFile(const FilePlace& original, const FilePlace& copy) {
  std::error_code error;
  if (std::filesystem::equivalent(original.Path(), copy.Path(), error))
    throw RuntimeFailure("La copia prenderebbe il posto del file stesso.").AtFile(copy.name);
}

void FilePlace::Replace(std::string_view bytes) const {
  std::error_code error;
  if (std::filesystem::status(folder.Path(), error).type() == std::filesystem::file_type::not_found)
    throw RuntimeFailure("La cartella \"" + folder.Path() + "\" non esiste.").AtFile(name);
  folder.Replace(name, bytes);
}

}  // namespace orm
