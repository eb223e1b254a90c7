// The calculator and the percentages on screen.
#include "utilities/calculator.h"

#include <gtest/gtest.h>

#include <cmath>

#include "runtime/failure.h"
#include "utilities/percentages.h"

namespace orm {
namespace {

TEST(Calculator, LeftToRightWithATape) {
  Calcolatrice c;
  EXPECT_EQ(c.Premi(0.1, '+'), 0.1);
  EXPECT_EQ(c.Premi(0.2, 'x'), 0.3);
  EXPECT_EQ(c.Premi(10, '-'), 3);
  EXPECT_EQ(c.Premi(5, '='), -2);
  EXPECT_EQ(c.Nastro(),
            "                     0,1 +\n                     0,2 x\n                      10 -\n"
            "                       5 =\n                      -2 *");
  EXPECT_EQ(c.Premi(7, ':'), 7);  // after "=" a new reckoning begins
  EXPECT_EQ(c.Premi(2, '='), 3.5);
}

TEST(Calculator, ARefusedKeyChangesNothing) {
  Calcolatrice c;
  c.Premi(6, ':');
  const std::string nastro = c.Nastro();
  EXPECT_THROW(c.Premi(0, '='), RuntimeFailure);
  EXPECT_EQ(c.Nastro(), nastro);
  EXPECT_EQ(c.Premi(3, '='), 2);
  c.Premi(999999999999, 'x');
  EXPECT_THROW(c.Premi(999999999999, '='), RuntimeFailure);
}

TEST(Calculator, Conversions) {
  Calcolatrice c;
  EXPECT_EQ(c.LireInEuroSulNastro(106000), 54.74);
  EXPECT_EQ(c.EuroInLireSulNastro(1), 1936);
  EXPECT_EQ(c.Nastro(), "L. 106.000 = € 54,74\n€ 1,00 = L. 1.936");
}

// Table A, class I/a at 1,000 million in period 5: 2.29425 x 1.9044 = 4.3691697, cut to 7 decimals.
TEST(Percentages, TableAAndItsDecimals) {
  RichiestaPercentuali r;
  r.importo = 1000000000;
  Criteri criteri;
  EXPECT_EQ(CalcolaPercentuali(r, criteri).tabellaA, "4,3691697%");
  // Beyond its last step Table C stays at 0.07889 x 1.9044 = 0.150238116.
  EXPECT_EQ(CalcolaPercentuali(r, criteri).tabellaC, "0,1502381%");
  EXPECT_EQ(CalcolaPercentuali(r, criteri).nuova, "");
  criteri.DecimaliTabelle = 3;
  EXPECT_EQ(CalcolaPercentuali(r, criteri).tabellaA, "4,369%");
  r.periodo = 6;
  EXPECT_EQ(CalcolaPercentuali(r, criteri).tabellaA, "");
  // 10 ^ 3.796119632 x 10 ^ (9 x -0.362475797) + 2.3301
  EXPECT_NEAR(PercentualeDiCurva(1e9, r), 2.3301 + std::pow(10, 3.796119632 - 9 * 0.362475797),
              1e-9);
}

TEST(Percentages, EuroGoesThroughLire) {
  RichiestaPercentuali r;
  r.lire = false;
  r.importo = 516456.90;  // 1,000,000,002 Lire
  Criteri criteri;
  criteri.DecimaliTabelle = 4;
  EXPECT_EQ(CalcolaPercentuali(r, criteri).tabellaA, "4,3691%");
  r.importo = 0;
  EXPECT_EQ(CalcolaPercentuali(r, criteri).tabellaA, "0%");
}

}  // namespace
}  // namespace orm
