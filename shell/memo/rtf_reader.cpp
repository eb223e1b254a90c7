// Reading of rich text files.
#include <algorithm>
#include <map>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "shell/memo/rtf.h"
#include "shell/memo/rtf_lexer.h"
#include "shell/memo/rtf_words.h"

namespace orm {
namespace {

constexpr std::size_t kDeepest = 100;  // groups within each other
constexpr int kFarthest = 31680;       // twips, 22 inches
constexpr int kGreatestHalfPoints = 3276;

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
  bool CharacterWord(std::string_view word, int number, bool on);
  bool ParagraphWord(std::string_view word, int number);
  bool FileWord(std::string_view word, int number);
  void UnicodeWord(int number);
  void Byte(unsigned char byte);
  void Text(std::string_view text);
  void EndParagraph();
  void EndRow();
  void EndDocument();
  void Lose(const char* what);
  void LoseByWord(std::string_view word, bool on);
  void TakeFont(int index);

  struct Font {
    std::string name;
    int charset = 0;
  };

  RtfLexer lexer_;
  std::vector<Group> groups_;
  RtfReading out_;
  RichParagraph paragraph_;
  std::string listText_;  // what the file shows before a list item
  std::map<int, Font> fonts_;
  std::vector<std::optional<Colour>> colours_;
  std::optional<Colour> colour_;  // the entry of the colour table that is being read
  int usualFont_ = 0;
  int toSkip_ = 0;
  char32_t highHalf_ = 0;
};

void RtfReader::Lose(const char* what) {
  if (std::find(out_.losses.begin(), out_.losses.end(), what) == out_.losses.end())
    out_.losses.emplace_back(what);
}

void RtfReader::LoseByWord(std::string_view word, bool on) {
  for (const Loss& loss : kLosses)
    if (loss.word == word && on) Lose(loss.what);
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
  if (groups_.size() == 1) EndDocument();
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
  if (CharacterWord(sign.word, number, on) || ParagraphWord(sign.word, number)) return;
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

bool RtfReader::CharacterWord(std::string_view word, int number, bool on) {
  RichStyle& style = Top().style;
  if (word == "b") {
    style.bold = on;
  } else if (word == "i") {
    style.italic = on;
  } else if (word == "ulnone") {
    style.underline = false;
  } else if (word == "ul") {
    style.underline = on;
  } else if (word.starts_with("ul") && word != "ulc") {  // dotted, waved and many more
    style.underline = on;
    if (on) Lose(kUnderlines);
  } else if (word == "fs") {
    if (number > 0) style.halfPoints = std::min(number, kGreatestHalfPoints);
  } else if (word == "cf") {
    const auto index = static_cast<std::size_t>(std::max(number, 0));
    style.colour = index < colours_.size() ? colours_[index] : std::nullopt;
  } else if (word == "f") {
    TakeFont(number);
  } else if (word == "plain") {
    style = RichStyle();
    TakeFont(usualFont_);
  } else {
    return false;
  }
  return true;
}

void RtfReader::TakeFont(int index) {
  Top().font = index;
  if (Top().place == Place::Fonts) {
    fonts_[index] = {};
    return;
  }
  const auto font = fonts_.find(index);
  Top().style.font =
      font == fonts_.end() || font->second.name.empty() ? RichStyle{}.font : font->second.name;
}

bool RtfReader::ParagraphWord(std::string_view word, int number) {
  RichSetting& setting = Top().setting;
  const int measure = std::clamp(number, -kFarthest, kFarthest);
  if (word == "row") {
    EndRow();
  } else if (word == "par" || word == "page" || word == "sect") {
    EndParagraph();
  } else if (word == "pard") {
    setting = {};
  } else if (word == "ql") {
    setting.alignment = RichSetting::Alignment::Left;
  } else if (word == "qc") {
    setting.alignment = RichSetting::Alignment::Centre;
  } else if (word == "qr") {
    setting.alignment = RichSetting::Alignment::Right;
  } else if (word == "qj") {
    setting.alignment = RichSetting::Alignment::Justified;
  } else if (word == "fi") {
    setting.first = measure;
  } else if (word == "li") {
    setting.left = measure;
  } else if (word == "ri") {
    setting.right = measure;
  } else if (word == "sb") {
    setting.before = measure;
  } else if (word == "sa") {
    setting.after = measure;
  } else if (word == "sl") {
    if (number != 0 && number != 240) Lose(kSpacing);
  } else if (word == "tx") {
    const auto place = std::lower_bound(setting.tabs.begin(), setting.tabs.end(), measure);
    if (place == setting.tabs.end() || *place != measure) setting.tabs.insert(place, measure);
  } else if (word == "pnlvlblt") {
    Top().bullet = true;
  } else {
    return false;
  }
  return true;
}

bool RtfReader::FileWord(std::string_view word, int number) {
  const int shade = std::clamp(number, 0, 255);
  const auto primary = [&]() -> Colour& { return colour_ ? *colour_ : colour_.emplace(); };
  if (word == "uc") {
    Top().unicode = std::max(number, 0);
  } else if (word == "deff") {
    usualFont_ = number;
  } else if (word == "fcharset") {
    if (Top().place == Place::Fonts) fonts_[Top().font].charset = number;
  } else if (word == "red") {
    primary().red = shade;
  } else if (word == "green") {
    primary().green = shade;
  } else if (word == "blue") {
    primary().blue = shade;
  } else if (word == "mac" || word == "pc" || word == "pca" ||
             (word == "ansicpg" && number != 1252)) {
    Lose(kOtherSet);
  } else if (std::find(std::begin(kPageWords), std::end(kPageWords), word) !=
             std::end(kPageWords)) {
    out_.document.page.emplace_back(word, number);
  } else {
    return false;
  }
  return true;
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
  if (byte >= 0x80 && Top().place == Place::Text) {
    const auto font = fonts_.find(Top().font);
    const int charset = font == fonts_.end() ? 0 : font->second.charset;
    if (charset > 2 && charset != 255) Lose(kOtherSet);
  }
  std::string text;
  try {
    text = FromWindows1252(std::string(1, static_cast<char>(byte)));
  } catch (const RuntimeFailure&) {
    text = "\uFFFD";
    Lose(kOtherSet);
  }
  Text(text);
}

void RtfReader::Text(std::string_view text) {
  Group& group = Top();
  switch (group.place) {
    case Place::Text:
      paragraph_.Append(text, group.style);
      break;
    case Place::ListText:
      listText_ += text;
      break;
    case Place::Fonts:
      if (text != ";") fonts_[group.font].name += text;
      break;
    case Place::Colours:
      if (text == ";") colours_.push_back(std::exchange(colour_, std::nullopt));
      break;
    case Place::Numbering:
    case Place::Skip:
      break;
  }
}

// One sign that is neither a letter nor a digit stands for a bullet whatever its shape.
bool IsBulletSign(std::string_view text) {
  while (!text.empty() && (text.back() == '\t' || text.back() == ' ')) text.remove_suffix(1);
  const bool one = Characters(text) == 1;
  const char c = one ? text[0] : ' ';
  return one && (c == 'o' || c < 0 ||
                 !((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')));
}

void RtfReader::EndParagraph() {
  paragraph_.setting = Top().setting;
  if (IsBulletSign(listText_)) paragraph_.setting.bullet = true;
  if (!listText_.empty() && !paragraph_.setting.bullet) {
    Lose(kNumbering);
    RichParagraph numbered;
    numbered.Append(listText_,
                    paragraph_.runs.empty() ? Top().style : paragraph_.runs.front().style);
    for (const RichRun& run : paragraph_.runs) numbered.Append(run.text, run.style);
    paragraph_.runs = std::move(numbered.runs);
  }
  listText_.clear();
  out_.document.paragraphs.push_back(std::exchange(paragraph_, {}));
}

// Cells of a table end; the tabs that stand for them part.
void RtfReader::EndRow() {
  if (!paragraph_.runs.empty()) {
    std::string& text = paragraph_.runs.back().text;
    if (text.ends_with('\t')) text.pop_back();
    if (text.empty()) paragraph_.runs.pop_back();
  }
  EndParagraph();
}

// The last end of paragraph closes the text and begins no new one.
void RtfReader::EndDocument() {
  if (!paragraph_.runs.empty() || !listText_.empty()) EndParagraph();
}

}  // namespace

RtfReading ReadRtf(std::string_view bytes) { return RtfReader(bytes).Read(); }

}  // namespace orm
