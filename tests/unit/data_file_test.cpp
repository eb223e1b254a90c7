// Data files: fields, quotes, line ends, encoding, and the message of every way to be damaged.
#include "runtime/data_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <random>

#include "runtime/failure.h"
#include "runtime/folder_lock.h"
#include "runtime/text.h"
#include "tests/temporary_folder.h"

namespace orm {
namespace {

DataReader Over(std::string_view bytes) { return DataReader::OfBytes("INP_PPE.DAP", bytes); }

std::string FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    return failure.Text();
  }
  return "(nessun errore)";
}

TEST(DataReader, ReadsFieldsAcrossLineEndsOfEveryKind) {
  DataReader file = Over("2,5\r\n\"a,\"\"b\"\"\r\nc\", .5\n,#TRUE#,-7E-1");
  EXPECT_EQ(file.Integer("a"), 2);
  EXPECT_EQ(file.Integer("b"), 5);
  EXPECT_EQ(file.Text("c"), "a,\"b\"\nc");
  EXPECT_EQ(file.Number("d"), 0.5);
  EXPECT_EQ(file.Text("e"), "");
  EXPECT_TRUE(file.Boolean("f"));
  EXPECT_EQ(file.Number("g"), -0.7);
  EXPECT_TRUE(file.AtEnd());
  EXPECT_NO_THROW(file.ExpectEnd());
}

TEST(DataReader, EmptyUnquotedFieldsAreEmptyOrZero) {
  DataReader file = Over(",,\r\n\r\n");
  EXPECT_EQ(file.Number("a"), 0);
  EXPECT_EQ(file.Text("b"), "");
  EXPECT_EQ(file.Integer("c"), 0);
  EXPECT_EQ(file.Text("d"), "");
  EXPECT_EQ(FailureOf([&] { file.Text("e"); }),
            "Il file finisce prima di questo campo.\nFile : INP_PPE.DAP\nRiga : 3\nCampo : e");
}

// The comma at the end of a file that lacks its line end stands before an empty field.
TEST(DataReader, AnEmptyLastFieldNeedsNoLineEnd) {
  DataReader file = Over("\"01/01/2001\",\"\",5,");
  for (const char* text : {"01/01/2001", "", "5", ""}) EXPECT_EQ(file.Text("a"), text);
  EXPECT_NO_THROW(file.ExpectEnd());
  EXPECT_THROW(file.Text("b"), RuntimeFailure);
}

TEST(DataReader, RefusesTheMarksOfOtherEncodings) {
  EXPECT_EQ(FailureOf([] { Over("\xEF\xBB\xBF\"Rossi\"").Text("Nome"); }),
            "Il testo non è in codifica Windows-1252 ma in UTF-8.\nFile : INP_PPE.DAP\nRiga : "
            "1\nCampo : Nome");
  EXPECT_EQ(FailureOf([] { Over("\xFF\xFER").Text("Nome"); }),
            "Il testo non è in codifica Windows-1252 ma in UTF-16.\nFile : INP_PPE.DAP\nRiga : "
            "1\nCampo : Nome");
}

// A carriage return alone, as some old systems end their lines, is not lost at the next save.
TEST(DataReader, KeepsLoneCarriageReturnsAsLineEnds) {
  std::string text = Over("\"a\rb\r\r\nc\"").Text("NOTE");
  EXPECT_EQ(text, "a\nb\n\nc");
  DataWriter writer;
  writer.Line(Field("NOTE", text));
  EXPECT_EQ(writer.Bytes(), "\"a\r\nb\r\n\r\nc\"\r\n");
  text = "a\rb\r\nc";
  DataWriter same;
  same.Line(Field("NOTE", text));
  EXPECT_EQ(same.Bytes(), "\"a\r\nb\r\nc\"\r\n");
}

TEST(DataReader, RefusesWhatIsNotItsText) {
  EXPECT_THROW(Over("1.5").Integer("a"), RuntimeFailure);
  EXPECT_THROW(Over("\"1\"").Number("a"), RuntimeFailure);
  EXPECT_THROW(Over("300").Byte("a"), RuntimeFailure);
  EXPECT_THROW(Over("VERO").Boolean("a"), RuntimeFailure);
  EXPECT_THROW(Over("\"aperto").Text("a"), RuntimeFailure);
  EXPECT_THROW(Over("\"chiuso\"x").Text("a"), RuntimeFailure);
  EXPECT_THROW(Over(std::string_view("\"a\0b\"", 5)).Text("a"), RuntimeFailure);
  EXPECT_THROW(Over("\"\x81"
                    "\"")
                   .Text("a"),
               RuntimeFailure);
  EXPECT_THROW(Over("\"Societ\xC3\xA0"
                    "\"")
                   .Text("a"),
               RuntimeFailure);  // UTF-8
  EXPECT_THROW(Over("21").Count("NumeroLotti", 20), RuntimeFailure);
  DataReader longer = Over("1,2");
  longer.Number("a");
  EXPECT_THROW(longer.ExpectEnd(), RuntimeFailure);
}

TEST(DataReader, TakesItalianTextThatLooksAlmostLikeUtf8) {
  EXPECT_EQ(Over("\"\xAB"
                 "CAFF\xC8\xBB \x80\"")
                .Text("a"),
            "«CAFFÈ» €");
}

TEST(DataWriter, WritesFieldsInTheForm) {
  DataWriter file;
  std::string text = "Società \"Ponti\"\n€";
  double number = 0.5;
  bool yes = true, no = false;
  std::int16_t whole = -3;
  file.Line(Field("a", text), Field("b", number), Field("c", yes));
  file.Line(Field("d", no), Field("e", whole));
  EXPECT_EQ(file.Bytes(), "\"Societ\xE0 \"\"Ponti\"\"\r\n\x80\",0.5,#TRUE#\r\n#FALSE#,-3\r\n");
}

TEST(DataWriter, RefusesCharactersThatFilesLack) {
  DataWriter file;
  std::string text = "Ω";
  EXPECT_EQ(FailureOf([&] { file.Line(Field("OGGETTO", text)); }),
            "Il carattere \"Ω\" non può essere scritto nei file della procedura.\nCampo : OGGETTO");
}

// The bytes that are no text are refused, every other one is a character and comes back; the
// control characters that Unicode has in the place of 0x80 to 0x9F are none of them.
TEST(Windows1252, EveryByteIsACharacterOrRefused) {
  const std::string lacking = "\x7F\x81\x8D\x8F\x90\x9D";
  for (int code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    if (lacking.find(byte) != std::string::npos ||
        (code < 0x20 && code != '\t' && code != '\n' && code != '\r'))
      EXPECT_THROW(FromWindows1252(byte), RuntimeFailure) << code;
    else
      EXPECT_EQ(ToWindows1252(FromWindows1252(byte)), byte);
    EXPECT_EQ(FitsWindows1252(static_cast<char32_t>(code)), code < 0x80 || code >= 0xA0) << code;
  }
}

// Whatever is written is read back the same, and written again byte for byte.
TEST(DataFile, RoundTripsRandomFields) {
  std::mt19937 random(143);
  const std::string alphabet = "ab \",\n€èÀ'#0.-;";
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (int i = static_cast<int>(random() % 12); i > 0; --i)
      text += Middle(alphabet, random() % Characters(alphabet), 1);
    double number = static_cast<double>(static_cast<int>(random())) / 1000;
    auto whole = static_cast<std::int16_t>(random());
    auto byte = static_cast<std::uint8_t>(random());
    bool flag = random() % 2 == 0;
    DataWriter out;
    out.Line(Field("t", text), Field("n", number), Field("w", whole));
    out.Line(Field("b", byte), Field("f", flag));

    DataReader in = Over(out.Bytes());
    EXPECT_EQ(in.Text("t"), text);
    EXPECT_EQ(in.Number("n"), number);
    EXPECT_EQ(in.Integer("w"), whole);
    EXPECT_EQ(in.Byte("b"), byte);
    EXPECT_EQ(in.Boolean("f"), flag);
    EXPECT_NO_THROW(in.ExpectEnd());
  }
}

// Cutting a file anywhere, or overwriting any byte, ends in a value or in a failure, never else.
TEST(DataFile, SurvivesEveryCutAndEveryByte) {
  const std::string whole = "\"Comune, \"\"X\"\"\",2,0.5,#TRUE#\r\n3\r\n";
  const auto readAll = [](std::string_view bytes) {
    try {
      DataReader file = Over(bytes);
      file.Text("a"), file.Integer("b"), file.Number("c"), file.Boolean("d"), file.Byte("e");
      file.ExpectEnd();
    } catch (const RuntimeFailure& failure) {
      EXPECT_NE(failure.Text().find("INP_PPE.DAP"), std::string::npos);
      EXPECT_FALSE(failure.Field().empty());
    }
  };
  for (std::size_t cut = 0; cut <= whole.size(); ++cut) readAll(whole.substr(0, cut));
  for (std::size_t at = 0; at < whole.size(); ++at)
    for (int byte = 0; byte < 256; ++byte) {
      std::string damaged = whole;
      damaged[at] = static_cast<char>(byte);
      readAll(damaged);
    }
}

class FolderTest : public ::testing::Test {
 protected:
  TemporaryFolder place_;
  const WorkFolder folder = place_.Folder();
};

TEST_F(FolderTest, ReplacesWholeAndLeavesNothingBeside) {
  folder.Replace("A.DAP", "prima");
  folder.Replace("A.DAP", "dopo");
  EXPECT_EQ(folder.Read("A.DAP"), "dopo");
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"A.DAP"});
}

TEST_F(FolderTest, RefusesWhatIsNoFileOfData) {
  std::filesystem::create_directory(folder.PathOf("A.DAP"));
  EXPECT_THROW(folder.Read("A.DAP"), RuntimeFailure);
  EXPECT_THROW(folder.Replace("A.DAP", "x"), RuntimeFailure);
  EXPECT_THROW(folder.Read("B.DAP"), RuntimeFailure);
  folder.Replace("C.DAP", "");
  std::filesystem::resize_file(folder.PathOf("C.DAP"), WorkFolder::kLargestFile + 1);
  EXPECT_EQ(FailureOf([&] { folder.Read("C.DAP"); }), "Il file è troppo grande.\nFile : C.DAP");
}

TEST_F(FolderTest, OneProgramHoldsAFolder) {
  {
    const FolderLock first(folder);
    EXPECT_TRUE(first.Held());
    EXPECT_FALSE(FolderLock(folder).Held());
  }
  EXPECT_TRUE(FolderLock(folder).Held());
}

}  // namespace
}  // namespace orm
