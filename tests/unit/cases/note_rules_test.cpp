// Single rules of the notes at their edges: products, tiers, stepped formulas, tables of the tariff
// files, revaluation, rounding, least fees.
#include "cases/coa/coa.h"
#include "cases/coa/data.h"
#include "cases/cos/note.h"
#include "cases/geo/config.h"
#include "cases/ppe/data.h"
#include "cases/ppe/ppe.h"
#include "cases/sic/data.h"
#include "cases/sic/sic.h"
#include "cases/stc/data.h"
#include "cases/stc/stc.h"
#include "runtime/failure.h"
#include "tariff/config/price_index.h"
#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

const WorkFolder kInstallazione(ORM_SOURCE_DIR "/data");

class RegoleNote : public NoteTest {
 protected:
  RegoleNote() { nota.scaglioni = ScaglioniCompensi(kInstallazione); }

  // How many lines of a report begin so.
  static long Righe(const Parcella& stampata, const std::string& inizio) {
    const std::string report = Report(stampata);
    long righe = 0;
    for (auto at = report.find("\n" + inizio); at != std::string::npos;
         at = report.find("\n" + inizio, at + 1))
      ++righe;
    return righe;
  }

  // The line of the one quantity that is not 0.
  std::string FormulaStc(const DatiStc& d) const {
    const std::string report = Report(CalcoloStc(nota, d, IndiciFoi(kInstallazione)));
    const auto titolo = report.find("Onorario in funzione");
    const auto inizio = report.find('\n', titolo) + 1;
    std::string riga = report.substr(inizio, report.find('\n', inizio) - inizio);
    const auto importo = riga.find_last_of(' ') + 1;
    std::string formula = riga.substr(0, 55);
    formula.erase(formula.find_last_not_of(' ') + 1);
    return formula + " -> " + riga.substr(importo);
  }
};

TEST_F(RegoleNote, LireProductsOfExpropriationsEndAtTheirThirtyTwoBits) {
  double totale = 0;
  EXPECT_NO_THROW(CalcoloPpe(nota, {20259, 0, 0, 14412, 1193}, totale));
  EXPECT_THROW(CalcoloPpe(nota, {20260, 0, 0, 0, 0}, totale), RuntimeFailure);
  EXPECT_THROW(CalcoloPpe(nota, {0, 0, 0, 14413, 0}, totale), RuntimeFailure);
  EXPECT_THROW(CalcoloPpe(nota, {0, 0, 0, 0, 1194}, totale), RuntimeFailure);
  nota.ModoLire = false;
  EXPECT_NO_THROW(CalcoloPpe(nota, {20260, 0, 0, 14413, 1194}, totale));
}

// Two tiers begin one Lira beyond 5,000 million, and only under the decree of 1987.
TEST_F(RegoleNote, WhereTheTiersOfATestingBegin) {
  const auto tiers = [this](std::int16_t periodo, double importo) {
    return Righe(CalcoloCoa(nota, {periodo, importo, 1, 0, 0}), "Percentuale (");
  };
  EXPECT_EQ(tiers(5, 5000000000), 1);
  EXPECT_EQ(tiers(5, 5000000001), 2);
  EXPECT_EQ(tiers(4, 6000000000), 1);
  nota.ModoLire = false;
  EXPECT_EQ(tiers(5, 2582284.49), 1);
  EXPECT_EQ(tiers(5, 2582284.50), 2);
}

// Both sides of every step, in Lire and in Euro.
TEST_F(RegoleNote, SteppedFormulas) {
  struct Caso {
    std::int32_t DatiStc::*campo;
    std::int32_t x;
    const char* lire;
    const char* euro;
  };
  const auto S = &DatiStc::Superficie, P = &DatiStc::NumeroPartite, M = &DatiStc::NumeroMappali,
             V = &DatiStc::VolumeAbitazioni, A = &DatiStc::SuperficieAgricola;
  const Caso casi[] = {
      {S, 1, "200.000 -> 200.000", "103,29 -> 103,29"},
      {S, 2000, "200.000 -> 200.000", "103,29 -> 103,29"},
      {S, 2001, "200.000 + 85x1 -> 200.085", "103,29 + 0,04x1 -> 103,33"},
      {S, 5000, "200.000 + 85x3.000 -> 455.000", "103,29 + 0,04x3.000 -> 223,29"},
      {S, 5001, "200.000 + 85x3.000 + 60x1 -> 455.060", "103,29 + 0,04x3.000 + 0,03x1 -> 223,32"},
      {S, 10000, "200.000 + 85x3.000 + 60x5.000 -> 755.000",
       "103,29 + 0,04x3.000 + 0,03x5.000 -> 373,29"},
      {S, 10001, "200.000 + 85x3.000 + 60x5.000 + 30x1 -> 755.030",
       "103,29 + 0,04x3.000 + 0,03x5.000 + 0,02x1 -> 373,31"},
      {P, 1, "175.000 -> 175.000", "90,38 -> 90,38"},
      {P, 2, "175.000 + 60.000x1 -> 235.000", "90,38 + 30,99x1 -> 121,37"},
      {M, 1, "30.000 x 1 -> 30.000", "15,49 x 1 -> 15,49"},
      {M, 1234, "30.000 x 1.234 -> 37.020.000", "15,49 x 1.234 -> 19.114,66"},
      {V, 500, "350.000 -> 350.000", "180,76 -> 180,76"},
      {V, 501, "350.000+350x1 -> 350.350", "180,76+0,18x1 -> 180,94"},
      {V, 2000, "350.000+350x1.500 -> 875.000", "180,76+0,18x1.500 -> 450,76"},
      {V, 2001, "350.000+350x1.500+230x1 -> 875.230", "180,76+0,18x1.500+0,12x1 -> 450,88"},
      {V, 4001, "350.000+350x1.500+230x2.000+115x1 -> 1.335.115",
       "180,76+0,18x1.500+0,12x2.000+0,06x1 -> 690,82"},
      {V, 8000, "350.000+350x1.500+230x2.000+115x4.000 -> 1.795.000",
       "180,76+0,18x1.500+0,12x2.000+0,06x4.000 -> 930,76"},
      {V, 8001, "350.000+350x1.500+230x2.000+115x4.000+60x1 -> 1.795.060",
       "180,76+0,18x1.500+0,12x2.000+0,06x4.000+0,03x1 -> 930,79"},
      {A, 1000, "350.000 -> 350.000", "180,76 -> 180,76"},
      {A, 1001, "350.000 + 175x 1 -> 350.175", "180,76 + 0,09x 1 -> 180,85"},
      {A, 2000, "350.000 + 175x 1.000 -> 525.000", "180,76 + 0,09x 1.000 -> 270,76"},
      {A, 2001, "350.000 + 175x1.000 + 115x1 -> 525.115", "180,76 + 0,09x1.000 + 0,06x1 -> 270,82"},
  };
  for (const Caso& caso : casi) {
    DatiStc d;
    d.*caso.campo = caso.x;
    nota.ModoLire = true;
    EXPECT_EQ(FormulaStc(d), caso.lire);
    nota.ModoLire = false;
    EXPECT_EQ(FormulaStc(d), caso.euro);
  }
}

// The official revaluation, and what the table cannot answer.
TEST(Indici, Revaluation) {
  const TemporaryFolder place;
  const WorkFolder folder(place.Path());
  const IndiciFoi indici(folder);
  const auto P = [&](int mese, int anno) { return indici.PercentualeRivalutazione(mese, anno); };
  folder.Replace("IND.CFG", kInstallazione.Read("IND.CFG"));
  EXPECT_NEAR(P(6, 1999), 21.79, 0.01);
  EXPECT_GE(P(6, 1999), 21.79);
  EXPECT_EQ(P(1, 1993), 0);
  EXPECT_NEAR(P(12, 2013), (167.7821103 / 102.3 - 1) * 100, 1e-9);
  EXPECT_THROW(P(12, 1992), RuntimeFailure);
  EXPECT_THROW(P(1, 2014), RuntimeFailure);
  EXPECT_THROW(P(13, 1999), RuntimeFailure);

  const std::string dodici = ",100,101,102,103,104,105,106,107,108,109,110,111\r\n";
  const std::string testa = "\"nota\"\r\n1993" + dodici;
  folder.Replace("IND.CFG", "3," + testa + "1994,0,0,0,0,0,0,0,0,0,0,0,0\r\n1995" + dodici);
  EXPECT_EQ(P(5, 1994), P(12, 1993));  // not published: the last month before
  folder.Replace("IND.CFG", "2," + testa + "1994,112,113,0,0,0,0,0,0,0,0,0,0\r\n");
  EXPECT_NEAR(P(11, 1994), 13, 1e-9);
  folder.Replace("IND.CFG", "2," + testa + "1996" + dodici);
  EXPECT_THROW(P(1, 1995), RuntimeFailure);  // a year missing in between
  folder.Replace("IND.CFG", "1,\"\"\r\n1994" + dodici);
  EXPECT_THROW(P(1, 1994), RuntimeFailure);
  folder.Replace("IND.CFG", "1,\"\"\r\n1993,0,1,1,1,1,1,1,1,1,1,1,1\r\n");
  EXPECT_THROW(P(2, 1993), RuntimeFailure);
}

TEST(StaticTestingTariff, InterpolatesBetweenItsLimits) {
  const PeriodoCos p{"ONORARIO", 250, 0, {100, 200, 400}, {300, 200, 100}};
  EXPECT_EQ(p.ValoreA(1), 300);
  EXPECT_EQ(p.ValoreA(100), 300);
  EXPECT_EQ(p.ValoreA(150), 250);
  EXPECT_EQ(p.ValoreA(400), 100);
  EXPECT_EQ(p.ValoreA(1e9), 100);
  EXPECT_EQ(p.OnorarioA(120), 280);
  EXPECT_EQ(p.OnorarioA(400), 250);
}

TEST_F(RegoleNote, RoundsToTheNearestMultiple) {
  const auto lire = [this](double v, double u) { return ArrotondaAlleCifreDi(nota, v, u); };
  EXPECT_EQ(lire(1499, 1000), 1000);
  EXPECT_EQ(lire(1500, 1000), 2000);
  EXPECT_EQ(lire(-1500, 1000), -2000);
  EXPECT_EQ(lire(1234, 0), 1234);
  nota.ModoLire = false;
  EXPECT_EQ(ArrotondaAlleCifreDi(nota, 1, 1000), 1.03);  // 1936 Lire, then 2000
  EXPECT_EQ(ArrotondaAlleCifreDi(nota, 0.2, 1000), 0);
}

// The first step repeats the second; flat below it, falling on above the last but never below 0.
TEST(GeotechnicalTariff, Table) {
  const TemporaryFolder place;
  const WorkFolder folder(place.Path());
  folder.Replace("GEO.CFG",
                 "\"a\",1\r\n\"b\",1\r\n\"c\",1\r\n\"d\",1\r\n\"e\",1\r\n3,n\r\n100,x\r\n"
                 "200,x\r\n300,x\r\n9,x\r\n4,1,x\r\n8,x\r\n3,3,x\r\n7,x\r\n2,1,x\r\n6,x\r\n"
                 "1,0.5,x\r\n");
  const TabelleGeo t = LeggiTabelleGeo(folder, 1);
  EXPECT_EQ(t.Percentuale(0, 1), 4);
  EXPECT_EQ(t.Percentuale(0, 100), 4);
  EXPECT_EQ(t.Percentuale(0, 150), 4);
  EXPECT_EQ(t.Percentuale(0, 200), 4);
  EXPECT_EQ(t.Percentuale(0, 250), 2.5);
  EXPECT_EQ(t.Percentuale(0, 300), 1);
  EXPECT_EQ(t.Percentuale(2, 350), 0.5);
  EXPECT_EQ(t.Percentuale(0, 1000), 0);
  EXPECT_EQ(t.Percentuale(1, 1000), 3);
  EXPECT_THROW(LeggiTabelleGeo(folder, 2), RuntimeFailure);
}

// A reckoned fee that equals the least fee stands; with a Lira of works less the least fee counts.
TEST_F(RegoleNote, LeastFeeOfADuty) {
  nota.CasoDiParcella = "SC2";
  nota.criteri.TipoPercentualeCompensi = "ASSEGNATA";
  nota.criteri.DecimaliTabelle = 1;
  const auto sicurezza = [this](double importo, const char* prestazioni) {
    return CalcoloSIC(
        nota, {"CONSUNTIVA", {{1, {6}}}, {{"1", "f", "6", importo, importo, prestazioni, "", ""}}});
  };
  const Parcella pari = sicurezza(200000000, "10000");  // 10 % x 0,02
  EXPECT_EQ(
      Righe(pari, "    10% x 0,02 x 200.000.000 =                         L.        400.000\n"), 1);
  EXPECT_EQ(Righe(pari, "  ONORARIO MINIMO"), 0);
  EXPECT_EQ(Righe(sicurezza(199999999, "10000"), "  ONORARIO MINIMO  \n400.000 =  "), 1);
  EXPECT_EQ(Righe(sicurezza(200000000, "00000"),
                  "TOTALE (Onorari e Compensi)                            L.              0\n"),
            1);
}

}  // namespace
}  // namespace orm
