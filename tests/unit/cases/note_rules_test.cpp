// Single rules of the further notes at their edges: stepped formulas, tables of the tariff files,
// revaluation, rounding, least fees.
#include "cases/cos/note.h"
#include "cases/geo/config.h"
#include "cases/sic/sic.h"
#include "cases/stc/data.h"
#include "cases/stc/stc.h"
#include "runtime/failure.h"
#include "tariff/price_index.h"
#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

class RegoleNote : public NoteTest {
 protected:
  RegoleNote() {
    for (const char* file : {"CS1.CFG", "GEO.CFG", "IND.CFG"})
      stato.folder.Replace(file, WorkFolder(ORM_SOURCE_DIR "/data").Read(file));
    stato.FileInp = "INP.DAP";
  }

  bool Stampa(std::string_view riga) { return Report().find(riga) != std::string::npos; }

  void Calcola(const std::string& dati, void (*calcolo)(RunState&)) {
    stato.folder.Replace(stato.FileInp, dati, Durability::Remakeable);
    stato.NumFileUscita = ReportPrinter();
    calcolo(stato);
  }

  // The line of the one quantity that is not 0.
  std::string FormulaStc(DatiStc d) {
    DataWriter file;
    Campi(file, d);
    Calcola(file.Bytes() + "0,0,\"\",1\r\n", CalcoloStc);
    const std::string report = Report();
    const auto titolo = report.find("Onorario in funzione");
    const auto inizio = report.find('\n', titolo) + 1;
    std::string riga = report.substr(inizio, report.find('\n', inizio) - inizio);
    const auto importo = riga.find_last_of(' ') + 1;
    std::string formula = riga.substr(0, 55);
    formula.erase(formula.find_last_not_of(' ') + 1);
    return formula + " -> " + riga.substr(importo);
  }
};

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
    stato.ModoLire = true;
    EXPECT_EQ(FormulaStc(d), caso.lire);
    stato.ModoLire = false;
    EXPECT_EQ(FormulaStc(d), caso.euro);
  }
}

TEST_F(RegoleNote, SurchargeLeavesTheBuildingsAlone) {
  Calcola("2000,1,0,500,0,1993,1,0.25\r\n0,0,\"\",1\r\n", CalcoloStc);
  EXPECT_TRUE(Stampa(" Maggiorazione per fronti stradali                     L.         93.750\n"));
  EXPECT_TRUE(Stampa("a 1 - 1993  0%\n"));
  EXPECT_TRUE(Stampa("TOTALE (Onorari e Compensi)                            L.        818.750\n"));
}

// The official revaluation, and what the table cannot answer.
TEST_F(RegoleNote, Revaluation) {
  const auto P = [this](int mese, int anno) {
    return PercentualeRivalutazione(stato.folder, mese, anno);
  };
  EXPECT_NEAR(P(6, 1999), 21.79, 0.01);
  EXPECT_GE(P(6, 1999), 21.79);
  EXPECT_EQ(P(1, 1993), 0);
  EXPECT_NEAR(P(12, 2013), (167.7821103 / 102.3 - 1) * 100, 1e-9);
  EXPECT_THROW(P(12, 1992), RuntimeFailure);
  EXPECT_THROW(P(1, 2014), RuntimeFailure);
  EXPECT_THROW(P(13, 1999), RuntimeFailure);

  const std::string dodici = ",100,101,102,103,104,105,106,107,108,109,110,111\r\n";
  const std::string testa = "\"nota\"\r\n1993" + dodici;
  stato.folder.Replace("IND.CFG", "3," + testa + "1994,0,0,0,0,0,0,0,0,0,0,0,0\r\n1995" + dodici);
  EXPECT_EQ(P(5, 1994), P(12, 1993));  // not published: the last month before
  stato.folder.Replace("IND.CFG", "2," + testa + "1994,112,113,0,0,0,0,0,0,0,0,0,0\r\n");
  EXPECT_NEAR(P(11, 1994), 13, 1e-9);
  stato.folder.Replace("IND.CFG", "2," + testa + "1996" + dodici);
  EXPECT_THROW(P(1, 1995), RuntimeFailure);  // a year missing in between
  stato.folder.Replace("IND.CFG", "1,\"\"\r\n1994" + dodici);
  EXPECT_THROW(P(1, 1994), RuntimeFailure);
  stato.folder.Replace("IND.CFG", "1,\"\"\r\n1993,0,1,1,1,1,1,1,1,1,1,1,1\r\n");
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
  const auto lire = [this](double v, double u) { return ArrotondaAlleCifreDi(stato, v, u); };
  EXPECT_EQ(lire(1499, 1000), 1000);
  EXPECT_EQ(lire(1500, 1000), 2000);
  EXPECT_EQ(lire(-1500, 1000), -2000);
  EXPECT_EQ(lire(1234, 0), 1234);
  stato.ModoLire = false;
  EXPECT_EQ(ArrotondaAlleCifreDi(stato, 1, 1000), 1.03);  // 1936 Lire, then 2000
  EXPECT_EQ(ArrotondaAlleCifreDi(stato, 0.2, 1000), 0);
}

TEST_F(RegoleNote, SharesOfARevision) {
  EXPECT_EQ(AliquotaRevisione("CS1", {"7", "b", "", 0}), 0.135);
  EXPECT_EQ(AliquotaRevisione("CS2", {"7", "b", "", 0}), 0.04);
  EXPECT_EQ(AliquotaRevisione("CS1", {"7", "d", "", 0}), 0);
  EXPECT_EQ(AliquotaRevisione("CS1", {"1", "g", "", 0}), 0.28);
  EXPECT_EQ(AliquotaRevisione("CS2", {"8", "", "", 0}), 0.1);
}

// The first step repeats the second; flat below it, falling on above the last but never below 0.
TEST_F(RegoleNote, GeotechnicalTable) {
  stato.folder.Replace("GEO.CFG",
                       "\"a\",1\r\n\"b\",1\r\n\"c\",1\r\n\"d\",1\r\n\"e\",1\r\n3,n\r\n100,x\r\n"
                       "200,x\r\n300,x\r\n9,x\r\n4,1,x\r\n8,x\r\n3,3,x\r\n7,x\r\n2,1,x\r\n6,x\r\n"
                       "1,0.5,x\r\n");
  const TabelleGeo t = LeggiTabelleGeo(stato.folder, 1);
  EXPECT_EQ(t.Percentuale(0, 1), 4);
  EXPECT_EQ(t.Percentuale(0, 100), 4);
  EXPECT_EQ(t.Percentuale(0, 150), 4);
  EXPECT_EQ(t.Percentuale(0, 200), 4);
  EXPECT_EQ(t.Percentuale(0, 250), 2.5);
  EXPECT_EQ(t.Percentuale(0, 300), 1);
  EXPECT_EQ(t.Percentuale(2, 350), 0.5);
  EXPECT_EQ(t.Percentuale(0, 1000), 0);
  EXPECT_EQ(t.Percentuale(1, 1000), 3);
  EXPECT_THROW(LeggiTabelleGeo(stato.folder, 2), RuntimeFailure);
}

// A reckoned fee that equals the least fee stands; with a Lira of works less the least fee counts.
TEST_F(RegoleNote, LeastFeeOfADuty) {
  stato.CasoDiParcella = "SC2";
  stato.criteri.TipoPercentualeCompensi = "ASSEGNATA";
  stato.criteri.DecimaliTabelle = 1;
  const auto nota = [this](const std::string& importo, const char* prestazioni) {
    Calcola("\"CONSUNTIVA\",1,1\r\n1,1\r\n6\r\n\"1\",\"f\",\"6\"," + importo + "," + importo +
                "\r\n\"" + prestazioni + "\",\"\",\"\"\r\n0,0,\"\",1\r\n",
            CalcoloSIC);
  };
  nota("200000000", "10000");  // 10 % x 0,02
  EXPECT_TRUE(Stampa("    10% x 0,02 x 200.000.000 =                         L.        400.000\n"));
  EXPECT_FALSE(Stampa("MINIMO"));
  nota("199999999", "10000");
  EXPECT_TRUE(Stampa("  ONORARIO MINIMO  \n400.000 =  "));
  nota("200000000", "00000");
  EXPECT_TRUE(Stampa("TOTALE (Onorari e Compensi)                            L.              0\n"));
}

}  // namespace
}  // namespace orm
