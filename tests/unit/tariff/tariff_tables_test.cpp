// The tables of the tariff: their edges, and what must hold all along them.
#include "tariff/law/tariff_tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "runtime/failure.h"
#include "tariff/accounting_block.h"
#include "tariff/law/table_a.h"
#include "tariff/law/table_b.h"
#include "tariff/law/table_c.h"
#include "tariff/law/table_curve_2001.h"
#include "tariff/money.h"
#include "tariff/percentages.h"

namespace orm {
namespace {

double A(double importo, int periodo, const char* classe, const char* categoria) {
  double percentuale = -1;
  PercentualeTabellaA(importo, periodo, classe, categoria, percentuale);
  return percentuale;
}

double Nuova(double importo, const char* classe, const char* categoria) {
  double percentuale = -1;
  PercentualeTabellaNuova(importo, classe, categoria, percentuale);
  return percentuale;
}

double C(int periodo, double importo) {
  double percentuale = -1;
  PercentualeTabellaContabilita(periodo, importo, percentuale);
  return percentuale;
}

// What the screen of percentages shows of class I/a stands in its script.
TEST(TableA, KnownValues) {
  EXPECT_DOUBLE_EQ(A(125000, 1, "1", "a"), 5.635);
  EXPECT_DOUBLE_EQ(A(75000000, 1, "6", "b"), (5.474 + 4.4275) / 2);
  EXPECT_DOUBLE_EQ(A(250000, 1, "5", "c"), 32.2);  // a class without categories
  EXPECT_EQ(A(1000000, 5, "6", "c"), 0);
  EXPECT_EQ(A(1000000, 6, "1", "a"), 0);
}

TEST(TableA, TheAmountBecomesPositive) {
  double importo = -1000000, percentuale = 0;
  PercentualeTabellaA(importo, 1, "1", "a", percentuale);
  EXPECT_EQ(importo, 1000000);
  EXPECT_DOUBLE_EQ(percentuale, 9.66);
}

// The last period brings nothing beyond the table: the percentage leaps down one Lira above it.
TEST(TableA, BeyondTheEnd) {
  EXPECT_DOUBLE_EQ(A(5000000000, 5, "1", "a"), 1.6905 * 1.9044);
  EXPECT_DOUBLE_EQ(A(5000000001, 5, "1", "a"), 1.6905 * 1.587);
  EXPECT_DOUBLE_EQ(A(5000000001, 4, "1", "a"), A(5000000000, 4, "1", "a"));
}

TEST(TableA, NothingHasNoStep) {
  double importo = 0, percentuale = 0;
  EXPECT_THROW(PercentualeTabellaA(importo, 5, "1", "a", percentuale), RuntimeFailure);
}

TEST(TableA, InEuroTheAmountGoesAsWholeLire) {
  double daEuro = 0;
  PercentualeTabellaADaEuro(1234567.89, 5, "1", "c", daEuro);
  EXPECT_DOUBLE_EQ(daEuro, A(2390456768, 5, "1", "c"));  // 2.390.456.768,37 Lire
  PercentualeTabellaADaEuro(2582284.50, 5, "1", "c", daEuro);
  EXPECT_DOUBLE_EQ(daEuro, A(5000000009, 5, "1", "c"));
}

TEST(TableA, FallsAndIsContinuousAndRisesWithThePeriods) {
  for (const RigaTabellaA& riga : kTabellaA) {
    const std::string classe(riga.chiave.substr(0, 1)), categoria(riga.chiave.substr(1));
    const auto p = [&](double importo, int periodo) {
      return A(importo, periodo, classe.c_str(), categoria.c_str());
    };
    for (std::size_t i = 0; i < kImportiTabellaA.size(); ++i) {
      const double x = kImportiTabellaA[i];
      EXPECT_DOUBLE_EQ(p(x, 1), riga.percentuali[i]);
      EXPECT_NEAR(p(x + 0.5, 1), p(x - 0.5, 1), 0.0003) << riga.chiave << ' ' << x;
      EXPECT_NEAR(p(x, 5), p(x, 1) * 1.9044, 1e-12);
      EXPECT_NEAR(p(x, 3), p(x, 2) * 1.15, 1e-12);
      if (i > 0) {
        EXPECT_LE(riga.percentuali[i], riga.percentuali[i - 1]) << riga.chiave << ' ' << x;
      }
    }
  }
}

TEST(Curve2001, FlatBelowFiftyMillion) {
  for (const CurvaTariffa& curva : kTabellaNuova) {
    const std::string classe(curva.chiave.substr(0, 1)), categoria(curva.chiave.substr(1));
    const double p = Nuova(50000000, classe.c_str(), categoria.c_str());
    EXPECT_EQ(p, Nuova(1000, classe.c_str(), categoria.c_str()));
    EXPECT_EQ(p, Nuova(-1000, classe.c_str(), categoria.c_str()));
    EXPECT_GT(p, Nuova(60000000, classe.c_str(), categoria.c_str()));
    EXPECT_GT(p, curva.q);
  }
}

TEST(Curve2001, KnownValue) {  // worked out apart
  EXPECT_NEAR(Nuova(1000000000, "5", ""), std::pow(10, 0.432680746) + 2, 1e-9);
}

TEST(Curve2001, ClassFiveStopsAtOneThousandMillion) {
  EXPECT_EQ(Nuova(1000000000, "5", ""), Nuova(2000000000, "5", ""));
  EXPECT_EQ(Nuova(1000000000, "5", ""), Nuova(200000000000, "5", ""));
  EXPECT_GT(Nuova(1000000000, "1", "a"), Nuova(2000000000, "1", "a"));
  EXPECT_EQ(Nuova(100000000000, "1", "a"), Nuova(100000000001, "1", "a"));
}

TEST(Curve2001, GapsAndUnknownRowsLeaveTheValue) {
  EXPECT_EQ(Nuova(50000000.5, "1", "a"), -1);
  EXPECT_EQ(Nuova(1000000000.5, "1", "a"), -1);
  EXPECT_EQ(Nuova(70000000, "4", "d"), -1);
  EXPECT_NE(Nuova(50000001, "1", "a"), -1);
}

TEST(TableC, KnownValues) {
  EXPECT_EQ(C(1, 0), 0);
  EXPECT_DOUBLE_EQ(C(1, 1), 1.61);
  EXPECT_DOUBLE_EQ(C(1, 1500000), (1.61 + 1.4168) / 2);
  EXPECT_DOUBLE_EQ(C(5, 400000000), (0.09982 + 0.07889) / 2 * 1.9044);
  EXPECT_DOUBLE_EQ(C(5, 5000000000), 0.07889 * 1.9044);
  EXPECT_DOUBLE_EQ(C(5, 5000000001), 0.07889 * 1.9044);
  EXPECT_DOUBLE_EQ(C(5, 5000000002), 0.07889 * 1.587);
  EXPECT_DOUBLE_EQ(C(4, 5000000002), 0.07889 * 1.587);
  EXPECT_EQ(C(6, 1000000), 0);
  EXPECT_THROW(C(5, -1), RuntimeFailure);
}

// The percentage never rises, and a period keeps its distance from the first one all along.
TEST(TableC, FallsWithTheAmount) {
  std::mt19937_64 random(1965);
  std::uniform_real_distribution<double> exponent(0, 11);
  for (int i = 0; i < 5000; ++i) {
    const double x = std::pow(10, exponent(random)), y = x * 1.01;
    EXPECT_GE(C(1, x), C(1, y) - 1e-12) << x;
    EXPECT_NEAR(C(4, x), C(1, x) * 1.587, 1e-12) << x;
  }
}

TEST(TableB, EveryRowAddsUpToOne) {
  Aliquote tutte;
  tutte.fill(1);
  for (char classe = '1'; classe <= '9'; ++classe)
    for (const char* categoria : {"a", "b", "c", "d", "e", "f", "g"}) {
      if (classe == '7' && categoria[0] > 'c') continue;
      Aliquote aliquote{};
      Conto progettazione, direzione;
      TabellaBAliquote(std::string(1, classe), categoria, tutte, aliquote, progettazione,
                       direzione);
      EXPECT_NEAR(progettazione + direzione, 1, 1e-12) << classe << categoria;
      EXPECT_EQ(aliquote[0], 0);
    }
}

TEST(TableB, SumsWhatIsChosen) {
  Aliquote scelte{}, aliquote{};
  scelte[1] = scelte[3] = scelte[8] = 1;
  Conto progettazione = 5, direzione = 5;
  TabellaBAliquote("5", "", scelte, aliquote, progettazione, direzione);
  EXPECT_DOUBLE_EQ(progettazione, 0.42);
  EXPECT_DOUBLE_EQ(direzione, 0.12);
  TabellaBAliquote("1", "z", scelte, aliquote, progettazione, direzione);  // as category e
  EXPECT_DOUBLE_EQ(progettazione, 0.40);
  TabellaBAliquote("1", "g", scelte, aliquote, progettazione, direzione);
  EXPECT_DOUBLE_EQ(progettazione, 0.36);
}

// Both go their own way where the law has no such category.
TEST(TableB, SingleLettersPayPricesAndStability) {
  EXPECT_EQ(AliquotaAggiornamento("7", "b"), 0.045);
  EXPECT_EQ(AliquotaAggiornamento("7", "d"), 0.04);
  EXPECT_EQ(AliquotaAggiornamento("1", "z"), 0.08);
  EXPECT_EQ(AliquotaAggiornamento("0", "a"), 0);
  EXPECT_EQ(AliquotaRevisioneCalcoli("1", "g", true), 0.16);
  for (const bool tabelle2001 : {false, true})
    for (const char* classe : {"0", "1", "7"})
      EXPECT_EQ(AliquotaRevisioneCalcoli(classe, "z", tabelle2001), 0) << classe;
}

int Decimali(double importo, int criterio = 0) {
  int decimali = -1;
  DecimaliPercentuale(importo, decimali, criterio);
  return decimali;
}

TEST(Decimals, ByTheAmount) {
  EXPECT_EQ(Decimali(99999), 3);
  EXPECT_EQ(Decimali(100000), 4);
  EXPECT_EQ(Decimali(1000000), 4);
  EXPECT_EQ(Decimali(1000001), 5);
  EXPECT_EQ(Decimali(10000001), 6);
  EXPECT_EQ(Decimali(500000001), 7);
  EXPECT_EQ(Decimali(1000000001), 8);
  EXPECT_EQ(Decimali(100000000000), 8);
  EXPECT_EQ(Decimali(100000000001), 9);
  EXPECT_EQ(Decimali(1000000.5), -1);
  EXPECT_EQ(Decimali(99999, 2), 2);
}

TEST(PercentageText, IsCutToItsDecimals) {
  Criteri criteri;
  criteri.DecimaliTabelle = 2;
  double importo = 1000000000, percentuale = 0;
  std::string testo;
  StringaPercentualeTabellaA(importo, 5, "1", "a", criteri, percentuale, testo);
  EXPECT_EQ(testo, "4,36%");
  EXPECT_EQ(percentuale, 4.36);
  importo = 0;
  StringaPercentualeTabellaA(importo, 5, "1", "a", criteri, percentuale, testo);
  EXPECT_EQ(testo, "0 %");
  EXPECT_EQ(percentuale, 0);
}

TEST(Names, OfPeriodsAndCoefficientsThatDoNotExist) {
  EXPECT_EQ(NomePeriodoTariffario(0), "D.M. xx-yyyyy-zzzz");
  EXPECT_EQ(NomePeriodoTariffarioEsteso(6), NomePeriodoTariffarioEsteso(5));
  EXPECT_EQ(StringaClasseCategoria("5", "a"), "5");
  EXPECT_EQ(CoefficienteInStringa(1.3), "1,00");
}

}  // namespace
}  // namespace orm
