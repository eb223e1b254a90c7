// The help: contents, the page of each command, the search, and pages whose links lead somewhere.
#include "shell/help/help_books.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>

#include "cases/fee_case.h"
#include "shell/help/program_texts.h"

namespace orm {
namespace {

const HelpBook& Manual(const std::vector<HelpBook>& books) {
  return *std::ranges::find(books, kManuale, &HelpBook::file);
}

TEST(HelpBooks, PagesAreReadWithTheirHeadings) {
  const HelpPage page =
      ReadHelpPage("manuale/x.md",
                   "# Titolo\n<!-- comandi: UNO DUE_* -->\n\nTesto.\n\n## Prima\n\n## Seconda\n");
  EXPECT_EQ(page.title, "Titolo");
  EXPECT_EQ(page.sections, (std::vector<std::string>{"Prima", "Seconda"}));
  EXPECT_TRUE(page.Describes("UNO"));
  EXPECT_TRUE(page.Describes("DUE_E_ID"));
  EXPECT_FALSE(page.Describes("UNO_ID"));
  EXPECT_EQ(page.text.find("comandi"), std::string::npos);
}

TEST(HelpBooks, EveryBookHasPagesAndTheManualIsInOrder) {
  const auto books = HelpBooks();
  ASSERT_EQ(books.size(), 4U);
  for (const HelpBook& book : books) {
    ASSERT_FALSE(book.pages.empty()) << book.file;
    for (const HelpPage& page : book.pages) {
      EXPECT_FALSE(page.title.empty()) << page.file;
      EXPECT_FALSE(page.text.empty()) << page.file;
    }
  }
  for (const HelpPage& page : Manual(books).pages) EXPECT_NE(page.group, "") << page.file;
}

TEST(HelpBooks, PageOfACommand) {
  EXPECT_EQ(HelpFor("PARCELLE_COA_E_VS"), "manuale/coa.md");
  EXPECT_EQ(HelpFor(""), kManuale);
  EXPECT_EQ(HelpFor("UN_ALTRO"), kManuale);
}

TEST(HelpBooks, EveryLinkAndPictureLeadsSomewhere) {
  const std::regex link(R"(\]\(([^)#]+)\))");
  for (const HelpBook& book : HelpBooks())
    for (const HelpPage& page : book.pages)
      for (std::sregex_iterator at(page.text.begin(), page.text.end(), link), end; at != end;
           ++at) {
        const auto folder =
            (std::filesystem::path(ORM_SOURCE_DIR "/docs") / page.file).parent_path();
        EXPECT_TRUE(std::filesystem::exists(folder / (*at)[1].str()))
            << page.file << ": " << (*at)[1];
      }
}

TEST(HelpSearch, TitlesBeforeHeadingsBeforeText) {
  const HelpBook book{"a.hlp",
                      "A",
                      {ReadHelpPage("a", "# Uno\n\nDella città si parla **qui**.\n"),
                       ReadHelpPage("b", "# Due\n\nAltro.\n\n## La Città\n\nE poi.\n"),
                       ReadHelpPage("c", "# CITTÀ\n\nAltro ancora: [è](x.md) qui.\n")}};
  const auto hits = SearchHelp({book}, "citta'");
  EXPECT_TRUE(hits.empty());
  const auto found = SearchHelp({book}, "CITTA");
  ASSERT_EQ(found.size(), 3U);
  EXPECT_EQ(found[0].page, 2U);
  EXPECT_EQ(found[1].page, 1U);
  EXPECT_EQ(found[1].section, "La Città");
  EXPECT_EQ(found[2].excerpt, "Della città si parla qui.");
  EXPECT_EQ(SearchHelp({book}, "altro è").size(), 2U);  // in any order, anywhere on the page
  EXPECT_TRUE(SearchHelp({book}, "  ").empty());
}

TEST(HelpSearch, ExcerptsAreWholeWordsAroundTheHit) {
  std::string text = "# Lungo\n\n";
  for (int i = 0; i < 60; ++i) text += "però ";
  text += "ago";
  for (int i = 0; i < 60; ++i) text += " così";
  const auto found = SearchHelp({{"a", "A", {ReadHelpPage("a", text)}}}, "ago");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_TRUE(found[0].excerpt.starts_with("… però ")) << found[0].excerpt;
  EXPECT_TRUE(found[0].excerpt.ends_with(" così …")) << found[0].excerpt;
  EXPECT_NE(found[0].excerpt.find(" ago "), std::string::npos);
}

TEST(HelpSearch, LettersWithoutAccents) {
  EXPECT_EQ(PlainLetters("perché Àncora ñ ß σ 12"), "PERCHE ANCORA N ß σ 12");
}

// What the program says of itself, and with it its manual page and its completion.
TEST(ProgramTexts, TheBatchProgramNamesEveryCaseThatItCalculates) {
  for (const FeeCase& fee : FeeCases()) {
    const std::string entry = "\n  " + std::string(fee.code) + "\n";
    EXPECT_EQ(ProgramText("orm2002-calcolo").find(entry) != std::string_view::npos,
              fee.calcolo != nullptr)
        << fee.code;
  }
}

}  // namespace
}  // namespace orm
