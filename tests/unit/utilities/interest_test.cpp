// Late-payment interest: the counting of days and the rates, worked out by hand.
#include "utilities/interest.h"

#include <gtest/gtest.h>

#include "runtime/failure.h"
#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

const Date kOggi{2002, 3, 15};

TabellaTus Tabella() {
  return {{{2000, 1, 1}, {2000, 3, 31}, 10},
          {{2000, 4, 1}, {2000, 8, 31}, 8},
          {{2000, 9, 1}, {2001, 2, 28}, 6},
          {{2001, 3, 1}, {2001, 9, 30}, 5},
          {{2001, 10, 1}, kOggi, 4}};
}

InteressiMora Semplice(const Date& inizio, const Date& fine, double onorario = 10000000) {
  return CalcolaInteressiMora(Tabella(), onorario, inizio, fine, TipoInteresse::Semplice);
}
InteressiMora Composto(const Date& inizio, const Date& fine, double onorario = 10000000) {
  return CalcolaInteressiMora(Tabella(), onorario, inizio, fine, TipoInteresse::Composto);
}

TEST(Interest, OnePeriod) {
  const auto esito = Semplice({2000, 2, 1}, {2000, 2, 11});
  EXPECT_EQ(esito.Giorni, 10);
  EXPECT_EQ(esito.TassoMedio, 10);
  EXPECT_DOUBLE_EQ(esito.Interessi, 27397.260273972603);  // 10,000,000 x 10 % x 10 / 365
}

// 46 days at 10, 152 at 8 (153 less the last), 180 at 6 (181 less the last), 111 at 5: 489 days,
// 3311 day-percents.
TEST(Interest, SeveralRateChanges) {
  const auto esito = Semplice({2000, 2, 15}, {2001, 6, 20});
  EXPECT_EQ(esito.Giorni, 489);
  EXPECT_DOUBLE_EQ(esito.TassoMedio, 3311.0 / 489);
  EXPECT_NEAR(esito.Interessi, 907123.2876712328, 1e-6);
  EXPECT_NEAR(Composto({2000, 2, 15}, {2001, 6, 20}).Interessi, 917405.178413031, 1e-6);
}

TEST(Interest, LastDayOfAPeriodAndFirstOfTheNext) {
  const auto esito = Semplice({2000, 3, 31}, {2000, 4, 1});
  EXPECT_EQ(esito.Giorni, 1);
  EXPECT_EQ(esito.TassoMedio, 10);
}

TEST(Interest, ThePeriodBeforeTheLastCountsAtTheLastRate) {
  const auto esito = Semplice({2001, 5, 1}, {2001, 6, 15});
  EXPECT_EQ(esito.Giorni, 45);
  EXPECT_EQ(esito.TassoMedio, 4);
  EXPECT_NEAR(esito.Interessi, 49315.068493150684, 1e-6);
}

// 45 days at 6, 213 at 5, 272 at 4 up to a day after today.
TEST(Interest, EndBeyondTodayGoesOnAtTheLastRate) {
  const auto esito = Composto({2001, 1, 15}, {2002, 6, 30});
  EXPECT_EQ(esito.Giorni, 530);
  EXPECT_NEAR(esito.Interessi, 670638.9342944097, 1e-6);
}

TEST(Interest, CompoundBeginsAfterAYear) {
  const TabellaTus solo{{{2000, 1, 1}, kOggi, 5}};
  const Date inizio{2001, 1, 1};
  const auto a365 =
      CalcolaInteressiMora(solo, 1000000, inizio, {2002, 1, 1}, TipoInteresse::Composto);
  EXPECT_EQ(a365.Giorni, 365);
  EXPECT_DOUBLE_EQ(a365.Interessi, 50000);
  const auto a366 =
      CalcolaInteressiMora(solo, 1000000, inizio, {2002, 1, 2}, TipoInteresse::Composto);
  EXPECT_NEAR(a366.Interessi, 50140.3646, 1e-3);  // 1.05 ^ (366 / 365) - 1
}

TEST(Interest, FailuresAreClear) {
  EXPECT_THROW(Semplice({2000, 2, 1}, {2000, 2, 1}), RuntimeFailure);
  EXPECT_THROW(Semplice({1999, 12, 31}, {2000, 2, 1}), RuntimeFailure);
}

// ---------------------------------------------------------------- the file

class InterestRates : public testing::Test {
 protected:
  TabellaTus Leggi(std::string_view text) {
    folder_.Replace(kFileTus, text);
    return LeggiTabellaTus(folder_, kOggi);
  }
  std::string Guasto(std::string_view text) {
    try {
      Leggi(text);
    } catch (const RuntimeFailure& failure) {
      return failure.Text();
    }
    return "nessun guasto";
  }

  TemporaryFolder place_;  // its own, beside other runs of the tests
  WorkFolder folder_{place_.Path()};
};

TEST_F(InterestRates, LastPeriodEndsToday) {
  const auto tabella =
      Leggi("2,tassi\r\n\"1/1/90\",\"31-12-1990\",12.5,\"x\"\r\n\"01.01.1991\",\"boh\",.5,\r\n");
  ASSERT_EQ(tabella.size(), 2U);
  EXPECT_EQ(tabella[0].FinePeriodo, (Date{1990, 12, 31}));
  EXPECT_EQ(tabella[0].Tasso, 12.5);
  EXPECT_EQ(tabella[1].InizioPeriodo, (Date{1991, 1, 1}));
  EXPECT_EQ(tabella[1].FinePeriodo, kOggi);
  EXPECT_EQ(tabella[1].Tasso, 0.5);
}

TEST_F(InterestRates, BadFilesAreRefusedWithTheirPlace) {
  EXPECT_EQ(
      Guasto(""),
      "Il file finisce prima di questo campo.\nFile : TUS.CFG\nRiga : 1\nCampo : NumeroPeriodi");
  EXPECT_EQ(Guasto("0,\"\"\n"),
            "La tabella dei tassi non contiene periodi.\nFile : TUS.CFG\nRiga : 1\nCampo : "
            "NumeroPeriodi");
  EXPECT_EQ(Guasto("2,\"\"\n\"1/1/90\",\"31/12/90\",1,\"\"\n\"31/12/90\",\"1/1/92\",1,\"\"\n"),
            "Il periodo comincia il 31/12/1990, ma il periodo precedente finisce il 31/12/1990.\n"
            "File : TUS.CFG\nRiga : 3\nCampo : InizioPeriodo");
  EXPECT_EQ(Guasto("2,\"\"\n\"1/1/90\",\"31/12/89\",1,\"\"\n\"1/1/91\",\"1/1/92\",1,\"\"\n"),
            "Il periodo finisce il 31/12/1989, prima del suo inizio, il 01/01/1990.\n"
            "File : TUS.CFG\nRiga : 2\nCampo : FinePeriodo");
  EXPECT_EQ(Guasto("1,\"\"\n\"31/2/90\",\"31/12/89\",1,\"\"\n"),
            "\"31/2/90\" non è una data: si scrive gg/mm/aaaa.\nFile : TUS.CFG\nRiga : 2\nCampo : "
            "InizioPeriodo");
  EXPECT_NE(Guasto("3,\"\"\n\"1/1/90\",\"31/12/90\",1,\"\"\n").find("finisce prima"),
            std::string::npos);
  EXPECT_NE(
      Guasto("1,\"\"\n\"1/1/90\",\"31/12/90\",1,\"\"\n\"1/1/91\",\"\",2,\"\"\n").find("altri dati"),
      std::string::npos);
  EXPECT_NE(Guasto("101,\"\"\n").find("fra 0 e 100"), std::string::npos);
  folder_.Remove(kFileTus);
  EXPECT_THROW(LeggiTabellaTus(folder_, kOggi), RuntimeFailure);
}

}  // namespace
}  // namespace orm
