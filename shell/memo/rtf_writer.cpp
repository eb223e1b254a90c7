// Writing of rich text files.
#include <algorithm>

#include "runtime/numbers.h"
#include "runtime/text.h"
#include "shell/memo/rtf.h"

namespace orm {

bool IsSymbolFont(std::string_view font) {
  return font == "Symbol" || font == "Webdings" || font == "Marlett" ||
         font.starts_with("Wingdings");
}

namespace {

std::string Word(std::string_view name, int value) {
  return "\\" + std::string(name) + NumberText(value);
}

std::string Hexadecimal(unsigned char byte) {
  const std::string_view digits = "0123456789abcdef";
  return {'\\', '\'', digits[byte >> 4], digits[byte & 15]};
}

// A code unit of 16 bits is a signed number; '?' stands for readers that know no Unicode.
std::string Unicode(char32_t character) {
  const auto unit = [](char32_t code) {
    return Word("u", static_cast<int>(code < 0x8000 ? code : code - 0x10000)) + "?";
  };
  if (character < 0x10000) return unit(character);
  character -= 0x10000;
  return unit(0xD800 + (character >> 10)) + unit(0xDC00 + (character & 0x3FF));
}

std::string Escaped(std::string_view text) {
  std::string out;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = NextCharacter(text, at);
    if (c == '\t') {
      out += "\\tab ";
    } else if (c == '\n') {
      out += "\\line ";
    } else if (c == '\\' || c == '{' || c == '}') {
      out += {'\\', static_cast<char>(c)};
    } else if (c >= 0x20 && c < 0x7F) {
      out += static_cast<char>(c);
    } else if (c > 0x7F && FitsWindows1252(c)) {
      std::string one;
      AppendCharacter(one, c);
      out += Hexadecimal(static_cast<unsigned char>(ToWindows1252(one)[0]));
    } else {
      out += Unicode(c);
    }
  }
  return out;
}

class RtfWriter {
 public:
  explicit RtfWriter(const RichDocument& document) : document_(document) {}

  std::string Write() {
    std::string body;
    for (const RichParagraph& paragraph : document_.paragraphs) body += Paragraph(paragraph);
    return "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\r\n" + FontTable() + ColourTable() + Page() +
           body + "}\r\n";
  }

 private:
  int FontIndex(const std::string& name) {
    const auto found = std::find(fonts_.begin(), fonts_.end(), name);
    if (found == fonts_.end()) fonts_.push_back(name);
    return static_cast<int>(std::find(fonts_.begin(), fonts_.end(), name) - fonts_.begin());
  }

  // 0 is the usual colour.
  int ColourIndex(const Colour& colour) {
    const auto found = std::find(colours_.begin(), colours_.end(), colour);
    if (found == colours_.end()) colours_.push_back(colour);
    return static_cast<int>(std::find(colours_.begin(), colours_.end(), colour) -
                            colours_.begin()) +
           1;
  }

  std::string FontTable() const {
    std::string out = "{\\fonttbl";
    for (std::size_t i = 0; i < fonts_.size(); ++i) {
      std::string name = fonts_[i];
      std::erase(name, ';');  // would end the entry
      out += "{" + Word("f", static_cast<int>(i)) + "\\fnil" +
             Word("fcharset", IsSymbolFont(name) ? 2 : 0) + " " + Escaped(name) + ";}";
    }
    return out + "}\r\n";
  }

  std::string ColourTable() const {
    std::string out = "{\\colortbl ;";
    for (const Colour& c : colours_)
      out += Word("red", c.red) + Word("green", c.green) + Word("blue", c.blue) + ";";
    return out + "}\r\n";
  }

  std::string Page() const {
    std::string out;
    for (const auto& [name, value] : document_.page) out += Word(name, value);
    return out.empty() ? out : out + "\r\n";
  }

  std::string Setting(const RichSetting& setting) {
    std::string out = "\\pard";
    if (setting.bullet) {
      const std::string font = NumberText(FontIndex("Symbol"));
      out += "{\\pntext\\f" + font + "\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnf" + font +
             "\\pnindent0{\\pntxtb\\'b7}}";
    }
    switch (setting.alignment) {
      case RichSetting::Alignment::Left:
        break;
      case RichSetting::Alignment::Centre:
        out += "\\qc";
        break;
      case RichSetting::Alignment::Right:
        out += "\\qr";
        break;
      case RichSetting::Alignment::Justified:
        out += "\\qj";
        break;
    }
    const std::pair<const char*, int> measures[] = {{"fi", setting.first},
                                                    {"li", setting.left},
                                                    {"ri", setting.right},
                                                    {"sb", setting.before},
                                                    {"sa", setting.after}};
    for (const auto& [name, value] : measures)
      if (value != 0) out += Word(name, value);
    for (const int tab : setting.tabs) out += Word("tx", tab);
    return out;
  }

  std::string Run(const RichRun& run) {
    const RichStyle& style = run.style;
    std::string out = "{" + Word("f", FontIndex(style.font)) + Word("fs", style.halfPoints);
    if (style.bold) out += "\\b";
    if (style.italic) out += "\\i";
    if (style.underline) out += "\\ul";
    if (style.colour) out += Word("cf", ColourIndex(*style.colour));
    return out + " " + Escaped(run.text) + "}";
  }

  std::string Paragraph(const RichParagraph& paragraph) {
    std::string out = Setting(paragraph.setting);
    for (const RichRun& run : paragraph.runs) out += Run(run);
    return out + "\\par\r\n";
  }

  const RichDocument& document_;
  std::vector<std::string> fonts_{RichStyle{}.font};
  std::vector<Colour> colours_;
};

}  // namespace

std::string WriteRtf(const RichDocument& document) { return RtfWriter(document).Write(); }

}  // namespace orm
