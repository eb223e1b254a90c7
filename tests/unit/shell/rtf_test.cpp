// Rich text files: what the model holds survives, the rest is named, damage is refused.
#include "shell/memo/rtf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "runtime/failure.h"
#include "runtime/text.h"

namespace orm {
namespace {

class RandomMemo {
 public:
  explicit RandomMemo(unsigned seed) : dice_(seed) {}

  RichDocument Document() {
    RichDocument document;
    if (Chance(3)) document.page = {{"paperw", Number(1, 20000)}, {"margl", Number(0, 3000)}};
    for (int n = Number(0, 8); n > 0; --n) document.paragraphs.push_back(Paragraph());
    return document;
  }

 private:
  int Number(int least, int most) { return std::uniform_int_distribution<int>(least, most)(dice_); }
  bool Chance(int of) { return Number(1, of) == 1; }

  RichParagraph Paragraph() {
    RichParagraph paragraph;
    RichSetting& setting = paragraph.setting;
    setting.alignment = static_cast<RichSetting::Alignment>(Number(0, 3));
    if (Chance(2)) setting.left = Number(-500, 3000);
    if (Chance(2)) setting.right = Number(0, 900);
    if (Chance(2)) setting.first = Number(-700, 700);
    if (Chance(3)) setting.before = Number(0, 400);
    if (Chance(3)) setting.after = Number(0, 400);
    setting.bullet = Chance(4);
    for (int n = Number(0, 3), tab = 0; n > 0; --n) setting.tabs.push_back(tab += Number(1, 2000));
    for (int n = Number(0, 5); n > 0; --n) paragraph.Append(Text(), Style());
    return paragraph;
  }

  RichStyle Style() {
    const char* const fonts[] = {"Times New Roman", "Arial", "Città {1}", "Wingdings 2", "Ζεύς"};
    RichStyle style{fonts[Number(0, 4)], Number(1, 200), Chance(2), Chance(2), Chance(2), {}};
    if (Chance(2)) style.colour = Colour{Number(0, 255), Number(0, 255), Number(0, 255)};
    return style;
  }

  std::string Text() {
    std::string text;
    for (int n = Number(1, 12); n > 0; --n) AppendCharacter(text, Character());
    return text;
  }

  char32_t Character() {
    const char32_t odd[] = {'\\', '{',  '}',  '\t', '\n', ' ',  U'€',
                            U'à', U'·', U'ÿ', 0xA0, 0xAD, 0x7F, 1};
    switch (Number(0, 4)) {
      case 0:
        return odd[Number(0, 13)];
      case 1:
        return static_cast<char32_t>(Number(0x100, 0xD7FF));
      case 2:
        return static_cast<char32_t>(Number(0x10000, 0x10FFFF));
      default:
        return static_cast<char32_t>(Number(0x20, 0x7E));
    }
  }

  std::mt19937 dice_;
};

TEST(Rtf, WhatIsWrittenInSevenBitsIsReadBack) {
  for (unsigned seed = 1; seed <= 400; ++seed) {
    const RichDocument document = RandomMemo(seed).Document();
    const std::string file = WriteRtf(document);
    const RtfReading reading = ReadRtf(file);
    EXPECT_TRUE(reading.losses.empty()) << seed;
    ASSERT_EQ(reading.document, document) << seed << "\n" << file;
    for (const char c : file) ASSERT_TRUE(c == '\r' || c == '\n' || (c >= 32 && c < 127)) << seed;
  }
}

TEST(Rtf, AFileCutShortIsRefused) {
  const std::string file = WriteRtf(RandomMemo(7).Document());
  for (std::size_t size = 0; size < file.rfind('}'); ++size)
    EXPECT_THROW(ReadRtf(file.substr(0, size)), RuntimeFailure) << size;
}

TEST(Rtf, RefusesWhatIsNoRichText) {
  for (const std::string& file :
       {std::string(), std::string("testo"), std::string("{\\test}"), std::string("{\\rtf1 a}}"),
        std::string("{\\rtf1 \\'0g}"), std::string("{\\rtf1 \\bin99 x}"),
        std::string("{\\rtf1\\fs99999999999 x}"), std::string("{\\rtf1 a\0b}", 11),
        "{\\rtf1" + std::string(200, '{') + std::string(201, '}')})
    EXPECT_THROW(ReadRtf(file), RuntimeFailure) << file;
}

// As word processors of the time write it.
// Files made to fill the memory: what is beyond all use is left out and told, or the file refused.
TEST(Rtf, NoBomb) {
  const auto many = [](int times, const std::string& what) {
    std::string text;
    for (int i = 0; i < times; ++i) text += what;
    return text;
  };
  std::string tabs;
  for (int i = 0; i < 20'000; ++i) tabs += "\\tx" + std::to_string(i);
  const RtfReading read = ReadRtf("{\\rtf1" + tabs + many(20'000, "a\\par ") + "}");
  EXPECT_EQ(read.document.paragraphs.size(), 20'000U);
  EXPECT_LT(read.document.paragraphs.back().setting.tabs.size(), 100U);
  EXPECT_EQ(read.losses.size(), 1U);
  const RtfReading name = ReadRtf("{\\rtf1{\\fonttbl{\\f0 " + many(5'000, "nome") + ";}}\\f0 a}");
  EXPECT_LT(name.document.paragraphs[0].runs[0].style.font.size(), 100U);
  EXPECT_THROW(ReadRtf("{\\rtf1" + many(60'000, "\\par ") + "}"), RuntimeFailure);
  EXPECT_THROW(ReadRtf("{\\rtf1" + many(30'000, "\\b a\\b0 a") + "}"), RuntimeFailure);
}

TEST(Rtf, ReadsAFileOfAnotherProgram) {
  const RtfReading reading = ReadRtf(
      "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1040{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}"
      "{\\f1\\fnil\\fcharset2 Symbol;}}\r\n{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
      "{\\*\\generator Qualcuno;}\\viewkind4\\uc1\\pard\\qc\\cf1\\b\\f0\\fs28 Cose da "
      "fare\\cf0\\b0\\fs20\\par\r\n"
      "\\pard\\par\r\n"
      "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}\\fi-"
      "200\\li200 "
      "Citt\\'e0 \\i e\\i0  \\u8364?\\par\r\n"
      "{\\pntext\\f1\\'B7\\tab}Seconda\\tab\\ul voce\\ulnone\\par\r\n}\r\n" +
      std::string(1, '\0'));
  EXPECT_TRUE(reading.losses.empty());
  const auto& paragraphs = reading.document.paragraphs;
  ASSERT_EQ(paragraphs.size(), 4U);
  EXPECT_EQ(PlainText(reading.document), "Cose da fare\n\nCittà e €\nSeconda\tvoce");
  EXPECT_EQ(paragraphs[0].runs[0].style,
            (RichStyle{"Arial", 28, true, false, false, Colour{255, 0, 0}}));
  EXPECT_EQ(paragraphs[0].setting.alignment, RichSetting::Alignment::Centre);
  EXPECT_TRUE(paragraphs[2].setting.bullet);
  EXPECT_TRUE(paragraphs[3].setting.bullet);
  EXPECT_EQ(paragraphs[3].setting.left, 200);
  EXPECT_EQ(paragraphs[3].runs[1].style, (RichStyle{"Arial", 20, false, false, true, {}}));
}

TEST(Rtf, NamesWhatItCannotKeep) {
  const auto losses = [](const std::string& body) {
    return ReadRtf("{\\rtf1\\ansi " + body + "}").losses;
  };
  using Names = std::vector<std::string>;
  EXPECT_EQ(losses("a{\\*\\shppict{\\pict\\bin3 }{}}}b"), Names{"immagini"});
  EXPECT_EQ(losses("\\trowd\\intbl a\\cell b\\cell\\row"),
            Names{"tabelle (resta il testo delle celle)"});
  EXPECT_EQ(losses("{\\header x}{\\footer y}a"), Names{"intestazioni e piè di pagina"});
  EXPECT_EQ(losses("\\strike0 a\\b b"), Names{});
  EXPECT_EQ(losses("{\\uldashd a}{\\ulhwave b}{\\ulc2 c}"),
            Names{"forme particolari di sottolineatura"});
  EXPECT_EQ(losses("{\\listtext 1.\\tab}a").size(), 1U);
  EXPECT_EQ(PlainText(ReadRtf("{\\rtf1{\\listtext 1.\\tab}a}").document), "1.\ta");
  EXPECT_EQ(
      PlainText(
          ReadRtf("{\\rtf1{\\field{\\*\\fldinst{X}}{\\fldrslt qui}}\\uc2\\u224\\'3f?b}").document),
      "quiàb");
}

}  // namespace
}  // namespace orm
