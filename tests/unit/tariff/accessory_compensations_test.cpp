// Accessory compensations: the percentages of each criterion and their block in the report.
#include "tariff/accessory_compensations.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

class Compensations : public NoteTest {
 protected:
  Compensations() {
    folder.Replace("CAC.CFG", "2,\"prova\"\r\n100000000,30,\"Lire\"\r\n200000000,20,\"Lire\"\r\n");
    nota.scaglioni = ScaglioniCompensi(folder);
  }

  double Cfg(double importo) const { return nota.scaglioni.PercCompensiAccessoriCfg(importo); }

  // The block of an amount, and the coefficient as number and text.
  void Blocco(double importo, double coefficiente, const char* testo, const std::string& stampa) {
    nota.CompensiAccessori(importo);
    EXPECT_EQ(nota.Coefficiente, coefficiente);
    EXPECT_EQ(nota.StringaCoefficiente, testo);
    EXPECT_EQ(
        Report(),
        "=============== COMPENSI ACCESSORI CONGLOBATI (art. 13) ================\n" + stampa);
  }

  TemporaryFolder place;
  WorkFolder folder{place.Path()};
};

TEST_F(Compensations, StepsOfTheFile) {
  EXPECT_EQ(Cfg(150000000), 25);
  EXPECT_EQ(Cfg(100000000), 30);
  EXPECT_EQ(Cfg(1), 30);
  EXPECT_EQ(Cfg(200000000), 20);
  EXPECT_EQ(Cfg(900000000), 20);
  EXPECT_EQ(Cfg(0), 0);
  EXPECT_EQ(Cfg(-5), 30);
}

TEST_F(Compensations, OneStepAndThirtySteps) {
  folder.Replace("CAC.CFG", "1,\"\"\r\n100,40,\"\"\r\n");
  EXPECT_EQ(Cfg(50), 40);
  EXPECT_EQ(Cfg(500), 40);
  std::string file = "30,\"\"\r\n";
  for (int i = 1; i <= 30; ++i)
    file += std::to_string(i * 10) + "," + std::to_string(60 - i) + ",\"\"\r\n";
  folder.Replace("CAC.CFG", file);
  EXPECT_EQ(Cfg(295), 30.5);
  EXPECT_EQ(Cfg(301), 30);
}

TEST_F(Compensations, NewTariff) {
  EXPECT_EQ(PercCompensiNuovaTariffaLire(1000), 30);
  EXPECT_EQ(PercCompensiNuovaTariffaLire(50000000), 30);
  EXPECT_EQ(PercCompensiNuovaTariffaLire(50000000.5), 0);
  EXPECT_EQ(PercCompensiNuovaTariffaLire(50000001), 30);
  EXPECT_EQ(PercCompensiNuovaTariffaLire(100000000000), 15);
  EXPECT_EQ(PercCompensiNuovaTariffaLire(100000000001), 15);
  EXPECT_NEAR(PercCompensiNuovaTariffaLire(50025000000.5), 22.5, 1e-9);
  EXPECT_EQ(PercCompensiNuovaTariffaEuro(25822.84), 30);
  EXPECT_EQ(PercCompensiNuovaTariffaEuro(25822.845), 0);
  EXPECT_EQ(PercCompensiNuovaTariffaEuro(25822.85), 30);
  EXPECT_EQ(PercCompensiNuovaTariffaEuro(51645689.92), 15);
  EXPECT_NEAR(PercCompensiNuovaTariffaEuro(25835756.38), 22.5, 1e-9);
}

TEST_F(Compensations, ByTheFile) {
  // 30 - 10 * 0,23456789 = 27,6543211, cut to 6 decimals
  Blocco(123456789, 1.27654321, " x 1,27654321",
         "Percentuale : 27,654321% su                    L.      123.456.789\n");
}

TEST_F(Compensations, ByTheFileInEuroWithDecimalsOfTheCriteria) {
  nota.ModoLire = false;
  nota.criteri.DecimaliCompensi = 2;
  Blocco(123456789, 1.2765, " x 1,2765",
         "Percentuale : 27,65% su                        €       63.760,11\n");
}

TEST_F(Compensations, NewTariffIsReckonedInLireInBothModes) {
  nota.ModoLire = false;
  nota.criteri.TipoPercentualeCompensi = "NUOVA TARIFFA";
  Blocco(40000000, 1.3, " x 1,3",
         "Percentuale : 30% su                           €       20.658,28\n");
}

TEST_F(Compensations, GivenPercentageStandsAsAPlainNumber) {
  nota.criteri.TipoPercentualeCompensi = "ASSEGNATA";
  nota.criteri.PercCompensiAssegnata = 12.5;
  Blocco(1000000, 1.125, " x 1.125", "Percentuale : 12.5%\n");
}

TEST_F(Compensations, NothingPrintsNothing) {
  nota.criteri.TipoPercentualeCompensi = "ASSEGNATA";
  nota.CompensiAccessori(1000000);
  EXPECT_EQ(nota.Coefficiente, 1);
  EXPECT_EQ(nota.StringaCoefficiente, "");
  nota.criteri.TipoPercentualeCompensi = "CALCOLATA";
  nota.CompensiAccessori(1000000, ModoCompensi::SoloCalcolo);
  EXPECT_EQ(nota.Coefficiente, 1.3);
  nota.CompensiAccessori(1000000, ModoCompensi::Nessuno);
  EXPECT_EQ(nota.Coefficiente, 1);
  EXPECT_EQ(nota.StringaCoefficiente, "");
  nota.CompensiAccessori(0);
  EXPECT_EQ(nota.Coefficiente, 0);
  EXPECT_EQ(nota.StringaCoefficiente, "");
  EXPECT_EQ(Report(), "");
}

TEST_F(Compensations, OfTheRegionByAmountAndResidence) {
  nota.criteri.TipoPercentualeCompensi = "CALABRIA";
  using Testi = std::map<std::string, std::string>;
  const std::map<double, Testi> attesi = {
      {1500000000, {{"FUORIREGIONE", "1.6"}, {"OLTRE100KM", "1.6"}, {"ENTRO100KM", "1.6"}}},
      {1500000001, {{"FUORIREGIONE", "1.6"}, {"OLTRE100KM", "1.45"}, {"ENTRO100KM", "1.45"}}},
      {3000000000, {{"FUORIREGIONE", "1.6"}, {"OLTRE100KM", "1.45"}, {"ENTRO100KM", "1.45"}}},
      {3000000001, {{"FUORIREGIONE", "1.6"}, {"OLTRE100KM", "1.45"}, {"ENTRO100KM", "1.3"}}}};
  for (const auto& [importo, testi] : attesi)
    for (const auto& [residenza, testo] : testi) {
      nota.criteri.ResidenzaCollaudatore = residenza;
      nota.CompensiAccessori(importo);
      EXPECT_EQ(nota.StringaCoefficiente, " x " + testo) << residenza;
    }
}

}  // namespace
}  // namespace orm
