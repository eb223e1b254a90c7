// Reading of rich text files.
#include <algorithm>
#include <utility>

#include "runtime/failure.h"
#include "runtime/text.h"
#include "shell/memo/rtf.h"
#include "shell/memo/rtf_body.h"
#include "shell/memo/rtf_lexer.h"
#include "shell/memo/rtf_looks.h"
#include "shell/memo/rtf_tables.h"
#include "shell/memo/rtf_words.h"

namespace orm {
namespace {

constexpr std::size_t kDeepest = 100;  // groups within each other
constexpr std::size_t kMostPageWords = 100;

class RtfReader {
 public:
  explicit RtfReader(std::string_view bytes) : lexer_(bytes) {}
  RtfReading Read();

 private:
  enum class Place { Text, Fonts, Colours, ListText, Numbering, Skip };
  struct Group {
    Place place = Place::Text;
    RichStyle style;
    RichSetting setting;
    int font = -1;    // index in the table of fonts
    int unicode = 1;  // signs that stand for a \u for readers that know none
    bool starred = false;
    bool bullet = false;  // a definition of bullets was met in here
  };

  Group& Top() { return groups_.back(); }
  void Open();
  void Close();
  void Word(const RtfSign& sign);
  bool Destination(std::string_view word);
  bool FontWord(std::string_view word, int number);
  bool EndWord(std::string_view word);
  void FileWord(std::string_view word, int number);
  void UnicodeWord(int number);
  void Byte(unsigned char byte);
  void Text(std::string_view text);
  void LoseByWord(std::string_view word, bool on);
  void TakeFont(int index);

  RtfLexer lexer_;
  std::vector<Group> groups_;
  RtfReading out_;
  RtfBody body_{out_};
  RtfTables tables_{out_};
  int usualFont_ = 0;
  int toSkip_ = 0;
  char32_t highHalf_ = 0;
};

void RtfReader::LoseByWord(std::string_view word, bool on) {
  for (const Loss& loss : kLosses)
    if (loss.word == word && on) out_.Lose(loss.what);
}

RtfReading RtfReader::Read() {
  if (lexer_.Next().kind != RtfSign::Kind::Open) FailRtf("non comincia come un documento RTF");
  const RtfSign first = lexer_.Next();
  if (first.kind != RtfSign::Kind::Word || first.word != "rtf")
    FailRtf("non comincia come un documento RTF");
  groups_.emplace_back();
  while (!groups_.empty()) {
    const RtfSign sign = lexer_.Next();
    switch (sign.kind) {
      case RtfSign::Kind::Open:
        Open();
        break;
      case RtfSign::Kind::Close:
        Close();
        break;
      case RtfSign::Kind::Word:
        Word(sign);
        break;
      case RtfSign::Kind::Byte:
        Byte(sign.byte);
        break;
      case RtfSign::Kind::End:
        FailRtf("finisce prima della sua chiusura");
    }
  }
  if (!lexer_.OnlyPaddingLeft()) FailRtf("continua dopo la sua chiusura");
  return std::move(out_);
}

void RtfReader::Open() {
  if (groups_.size() >= kDeepest) FailRtf("ha troppi gruppi uno dentro l'altro");
  toSkip_ = 0;
  groups_.push_back(Group(Top()));
  Top().starred = Top().bullet = false;
}

void RtfReader::Close() {
  toSkip_ = 0;
  if (groups_.size() == 1) body_.EndDocument(Top().setting, Top().style);
  const Group closed = std::move(groups_.back());
  groups_.pop_back();
  if (groups_.empty()) return;
  if (closed.place == Place::Fonts && Top().place != Place::Fonts) {
    TakeFont(usualFont_);
  } else if (closed.bullet) {
    Top().setting.bullet = true;
  }
}

// ---------------------------------------------------------------- words

void RtfReader::Word(const RtfSign& sign) {
  if (sign.word == "bin") return lexer_.Skip(sign.number.value_or(0));
  if (toSkip_ > 0) {
    --toSkip_;
    return;
  }
  if (sign.word == "*") {
    Top().starred = true;
    return;
  }
  const int number = sign.number.value_or(0);
  const bool on = sign.number.value_or(1) != 0;
  LoseByWord(sign.word, on && (Top().place == Place::Text || sign.word == "pict"));
  if (Destination(sign.word) || Top().place == Place::Skip) return;
  if (sign.word == "u") return UnicodeWord(number);
  for (const auto& [word, text] : kNamedCharacters)
    if (word == sign.word) return Text(text);
  if (TakeCharacterWord(sign.word, number, on, tables_, Top().style, out_) ||
      TakeParagraphWord(sign.word, number, Top().setting, out_) || FontWord(sign.word, number) ||
      EndWord(sign.word))
    return;
  FileWord(sign.word, number);
}

// A word that says what a group is for. An unknown one with a star before it closes the group to
// readers that do not know it.
bool RtfReader::Destination(std::string_view word) {
  Group& group = Top();
  const bool starred = std::exchange(group.starred, false);
  if (word == "fonttbl") {
    group.place = Place::Fonts;
  } else if (word == "colortbl") {
    group.place = Place::Colours;
  } else if (word == "pntext" || word == "listtext") {
    group.place = Place::ListText;
  } else if (word == "pn") {
    group.place = Place::Numbering;
  } else if (word == "shppict" || word == "fldrslt") {
    return true;  // what is in it speaks for itself
  } else if (starred ||
             std::find(std::begin(kSkipped), std::end(kSkipped), word) != std::end(kSkipped)) {
    group.place = Place::Skip;
  } else {
    return false;
  }
  return true;
}

bool RtfReader::FontWord(std::string_view word, int number) {
  if (word == "f") {
    TakeFont(number);
  } else if (word == "plain") {
    Top().style = RichStyle();
    TakeFont(usualFont_);
  } else if (word == "deff") {
    usualFont_ = number;
  } else if (word == "fcharset") {
    if (Top().place == Place::Fonts) tables_.SetCharset(Top().font, number);
  } else {
    return false;
  }
  return true;
}

void RtfReader::TakeFont(int index) {
  Top().font = index;
  if (Top().place == Place::Fonts)
    tables_.BeginFont(index);
  else
    Top().style.font = tables_.FontName(index);
}

bool RtfReader::EndWord(std::string_view word) {
  if (word == "row") {
    body_.EndRow(Top().setting, Top().style);
  } else if (word == "par" || word == "page" || word == "sect") {
    body_.EndParagraph(Top().setting, Top().style);
  } else if (word == "pnlvlblt") {
    Top().bullet = true;
  } else {
    return false;
  }
  return true;
}

void RtfReader::FileWord(std::string_view word, int number) {
  if (word == "uc") {
    Top().unicode = std::max(number, 0);
  } else if (word == "red") {
    tables_.SetPrimary(&Colour::red, number);
  } else if (word == "green") {
    tables_.SetPrimary(&Colour::green, number);
  } else if (word == "blue") {
    tables_.SetPrimary(&Colour::blue, number);
  } else if (word == "mac" || word == "pc" || word == "pca" ||
             (word == "ansicpg" && number != 1252)) {
    out_.Lose(kOtherSet);
  } else if (std::find(std::begin(kPageWords), std::end(kPageWords), word) !=
             std::end(kPageWords)) {
    if (out_.Within(out_.document.page.size(), kMostPageWords))
      out_.document.page.emplace_back(word, number);
  }
}

// ---------------------------------------------------------------- text

void RtfReader::UnicodeWord(int number) {
  char32_t code = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
  toSkip_ = Top().unicode;
  if (code >= 0xD800 && code < 0xDC00) {
    highHalf_ = code;
    return;
  }
  if (code >= 0xDC00 && code < 0xE000)
    code = highHalf_ == 0 ? 0xFFFD : 0x10000 + ((highHalf_ - 0xD800) << 10) + (code - 0xDC00);
  highHalf_ = 0;
  std::string text;
  AppendCharacter(text, code > 0x10FFFF ? 0xFFFD : code);
  Text(text);
}

void RtfReader::Byte(unsigned char byte) {
  if (toSkip_ > 0) {
    --toSkip_;
    return;
  }
  if (Top().place == Place::Skip) return;
  if (byte >= 0x80 && Top().place == Place::Text && tables_.HasOtherLetters(Top().font))
    out_.Lose(kOtherSet);
  std::string text;
  try {
    text = FromWindows1252(std::string(1, static_cast<char>(byte)));
  } catch (const RuntimeFailure&) {
    text = "\uFFFD";
    out_.Lose(kOtherSet);
  }
  Text(text);
}

void RtfReader::Text(std::string_view text) {
  Group& group = Top();
  switch (group.place) {
    case Place::Text:
      body_.Append(text, group.style);
      break;
    case Place::ListText:
      body_.AppendToListText(text);
      break;
    case Place::Fonts:
      if (text != ";") tables_.AddToName(group.font, text);
      break;
    case Place::Colours:
      if (text == ";") tables_.EndColour();
      break;
    case Place::Numbering:
    case Place::Skip:
      break;
  }
}

}  // namespace

bool RtfReading::Within(std::size_t now, std::size_t most) {
  if (now >= most) Lose("quanto supera i limiti di un promemoria (tabulazioni, caratteri, colori)");
  return now < most;
}

void RtfReading::Lose(const char* what) {
  if (std::find(losses.begin(), losses.end(), what) == losses.end()) losses.emplace_back(what);
}

RtfReading ReadRtf(std::string_view bytes) { return RtfReader(bytes).Read(); }

}  // namespace orm
