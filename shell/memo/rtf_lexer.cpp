// The signs of a rich text file.
#include "shell/memo/rtf_lexer.h"

#include <charconv>

#include "runtime/failure.h"

namespace orm {
namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

void FailRtf(const std::string& reason) {
  throw RuntimeFailure("Il documento RTF è danneggiato: " + reason + ".");
}

RtfSign RtfLexer::Next() {
  while (at_ < bytes_.size() && (bytes_[at_] == '\r' || bytes_[at_] == '\n')) ++at_;
  if (at_ >= bytes_.size()) return {};
  const char c = bytes_[at_++];
  if (c == '{') return {RtfSign::Kind::Open, {}, {}, 0};
  if (c == '}') return {RtfSign::Kind::Close, {}, {}, 0};
  if (c == '\\') return Control();
  if (c == '\t') return {RtfSign::Kind::Word, "tab", {}, 0};
  if (c >= 0 && c < 0x20) FailRtf("contiene byte che non sono testo");
  return {RtfSign::Kind::Byte, {}, {}, static_cast<unsigned char>(c)};
}

RtfSign RtfLexer::Control() {
  if (at_ >= bytes_.size()) FailRtf("finisce dopo una barra rovescia");
  const std::size_t start = at_;
  if (!IsLetter(bytes_[at_])) {
    const char c = bytes_[at_++];
    if (c == '\'') return Hexadecimal();
    if (c == '\r' || c == '\n') return {RtfSign::Kind::Word, "par", {}, 0};
    if (c == '\t') return {RtfSign::Kind::Word, "tab", {}, 0};
    if (c == '\\' || c == '{' || c == '}')
      return {RtfSign::Kind::Byte, {}, {}, static_cast<unsigned char>(c)};
    return {RtfSign::Kind::Word, bytes_.substr(start, 1), {}, 0};
  }
  while (at_ < bytes_.size() && IsLetter(bytes_[at_])) ++at_;
  RtfSign sign{RtfSign::Kind::Word, bytes_.substr(start, at_ - start), Number(), 0};
  if (at_ < bytes_.size() && bytes_[at_] == ' ') ++at_;
  return sign;
}

std::optional<int> RtfLexer::Number() {
  const bool negative = at_ + 1 < bytes_.size() && bytes_[at_] == '-' && IsDigit(bytes_[at_ + 1]);
  if (!negative && (at_ >= bytes_.size() || !IsDigit(bytes_[at_]))) return std::nullopt;
  int value = 0;
  const auto [end, error] =
      std::from_chars(bytes_.data() + at_, bytes_.data() + bytes_.size(), value);
  if (error != std::errc()) FailRtf("un numero è troppo grande");
  at_ = static_cast<std::size_t>(end - bytes_.data());
  return value;
}

RtfSign RtfLexer::Hexadecimal() {
  unsigned value = 0;
  const char* const first = bytes_.data() + at_;
  if (bytes_.size() - at_ < 2 || std::from_chars(first, first + 2, value, 16).ptr != first + 2)
    FailRtf("un carattere non è scritto con due cifre esadecimali");
  at_ += 2;
  return {RtfSign::Kind::Byte, {}, {}, static_cast<unsigned char>(value)};
}

void RtfLexer::Skip(int count) {
  if (count < 0 || static_cast<std::size_t>(count) > bytes_.size() - at_)
    FailRtf("finisce dentro un'immagine");
  at_ += static_cast<std::size_t>(count);
}

bool RtfLexer::OnlyPaddingLeft() const {
  return bytes_.find_first_not_of(std::string_view("\r\n\t \0", 5), at_) == std::string_view::npos;
}

}  // namespace orm
