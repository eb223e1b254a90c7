// Expropriation notes over random data: printed lines add up, files come back byte for byte, and a
// cut file is refused.
#include "cases/ppe/ppe.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "cases/ppe/data.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "tariff/files/closing_line.h"
#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

// Whole cents of an amount as printed at the end of a line.
std::int64_t Cents(std::string_view line) {
  std::int64_t value = 0;
  const auto comma = line.find(',');
  for (const char c : line.substr(0, comma))
    if (c >= '0' && c <= '9') value = value * 10 + (c - '0');
  value *= 100;
  if (comma != std::string_view::npos)
    value += (line[comma + 1] - '0') * 10 + (line[comma + 2] - '0');
  return value;
}

class PpeTest : public NoteTest {
 protected:
  DatiPpe RandomData() {
    const auto count = [this](int most) {
      return static_cast<std::int16_t>(random() % 4 == 0 ? 0
                                                         : random() % static_cast<unsigned>(most));
    };
    return {count(20259), count(32767), count(32767), count(14412), count(1193)};
  }

  void Calculate(DatiPpe dati, bool lire) {
    DataWriter corpo;
    Campi(corpo, dati);
    stato.ModoLire = lire;
    stato.FileInp = "INP.DAP";
    ScriviParcella(stato.folder, stato.FileInp, corpo, {});
    stato.NumFileUscita = ReportPrinter();
    CalcoloPpe(stato, totale);
  }

  // The amounts behind the symbol in column 56, in cents: fee lines first, then the totals.
  std::vector<std::int64_t> Amounts() const {
    std::vector<std::int64_t> amounts;
    std::istringstream lines(Report());
    for (std::string line; std::getline(lines, line);)
      if (Middle(line, 55, 1) == "€" || Middle(line, 55, 2) == "L.")
        amounts.push_back(Cents(Middle(line, stato.ModoLire ? 58 : 56)));
    return amounts;
  }

  std::mt19937 random{1949};
  double totale = 0;
};

TEST_F(PpeTest, FeeLinesAddUpToTheTotal) {
  for (int round = 0; round < 400; ++round) {
    Calculate(RandomData(), round % 2 == 0);
    std::vector<std::int64_t> amounts = Amounts();
    ASSERT_GE(amounts.size(), 2U);
    const std::int64_t net = amounts.back();
    amounts.pop_back();
    const std::int64_t total = amounts.back();
    amounts.pop_back();
    std::int64_t sum = 0;
    for (const std::int64_t fee : amounts) sum += fee;
    EXPECT_EQ(sum, total) << Report();
    EXPECT_EQ(net, total);
  }
}

TEST_F(PpeTest, FilesComeBackByteForByte) {
  for (int round = 0; round < 200; ++round) {
    Calculate(RandomData(), true);
    const std::string written = stato.folder.Read("INP.DAP");
    DatiPpe dati;
    LeggiParcella(stato, dati);
    DataWriter corpo;
    Campi(corpo, dati);
    ScriviParcella(stato.folder, "INP.DAP", corpo, stato.chiusura);
    EXPECT_EQ(stato.folder.Read("INP.DAP"), written);
  }
}

TEST_F(PpeTest, LireProductsEndAtTheirThirtyTwoBits) {
  EXPECT_NO_THROW(Calculate({20259, 0, 0, 14412, 1193}, true));
  EXPECT_THROW(Calculate({20260, 0, 0, 0, 0}, true), RuntimeFailure);
  EXPECT_THROW(Calculate({0, 0, 0, 14413, 0}, true), RuntimeFailure);
  EXPECT_THROW(Calculate({0, 0, 0, 0, 1194}, true), RuntimeFailure);
  EXPECT_NO_THROW(Calculate({20260, 0, 0, 14413, 1194}, false));
}

TEST_F(PpeTest, EveryCutFileIsRefused) {
  const std::string valid = "2,5,3,1,1\r\n20,1000000,\"\",1\r\n";
  stato.FileInp = "INP_PPE.DAP";
  for (std::size_t cut = 0; cut < valid.size() - 3; ++cut) {
    stato.folder.Replace("INP_PPE.DAP", valid.substr(0, cut));
    DatiPpe dati;
    EXPECT_THROW(LeggiParcella(stato, dati), RuntimeFailure) << cut;
  }
}

}  // namespace
}  // namespace orm
