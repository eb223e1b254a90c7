// Table E against the overlap of each row with each band, worked out in exact fractions apart.
#include "tariff/law/accounting_fee.h"

#include <gtest/gtest.h>

#include <random>

#include "tariff/accounting_block.h"

namespace orm {
namespace {

double Onorario(const std::vector<RigaContabilita>& righe, bool lire = true) {
  return CalcoloOnorarioContabilita(righe, lire).onorario;
}

TEST(AccountingFee, WorkedFigures) {
  EXPECT_NEAR(Onorario({{5, 1, 8000000}}), 142572.906, 1e-6);
  EXPECT_NEAR(Onorario({{5, 1, 4000000}, {5, 1.2, 4000000}}), 156370.284, 1e-6);
  EXPECT_NEAR(Onorario({{1, 0.7, 130000000}}), 639572.5, 1e-6);
  EXPECT_NEAR(Onorario({{3, 1.4, 6e9}}), 62934567.9375, 1e-5);
  EXPECT_NEAR(Onorario({{5, 1, 6e9}}), 62944149.45, 1e-5);
  EXPECT_NEAR(Onorario({{2, 1, 5000000}, {4, 1.1, 15000000}, {5, 1, 1}}), 287417.61783042, 1e-6);
  EXPECT_NEAR(Onorario({{5, 1, 30000.55}}, false), 466.905571083, 1e-9);
  EXPECT_EQ(Onorario({}), 0);
  EXPECT_EQ(Onorario({{5, 1, -3}}), 0);
}

// Cutting a row into pieces of the same period and coefficient changes nothing.
TEST(AccountingFee, PiecesAddUpToTheWhole) {
  std::mt19937 dice(5);
  for (int prova = 0; prova < 200; ++prova) {
    std::vector<RigaContabilita> pezzi;
    double tutto = 0;
    for (int n = std::uniform_int_distribution<int>(1, 10)(dice); n > 0; --n) {
      const double importo = std::uniform_int_distribution<int>(1, 90000000)(dice);
      pezzi.push_back({5, 1.2, importo});
      tutto += importo;
    }
    const auto esito = CalcoloOnorarioContabilita(pezzi, true);
    EXPECT_EQ(esito.importo, tutto);
    EXPECT_NEAR(esito.onorario, Onorario({{5, 1.2, tutto}}), 1e-5);
    double parti = 0;
    for (const auto& fascia : esito.fasce) parti += fascia.parte;
    EXPECT_EQ(parti, tutto);
  }
}

}  // namespace
}  // namespace orm
