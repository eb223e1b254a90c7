// All notes through their files: properties over random data of each case, and the notes that no
// menu reaches against reports worked out apart.
#include <regex>

#include "runtime/failure.h"
#include "runtime/text.h"
#include "tests/unit/cases/random_files.h"

namespace orm {
namespace {

constexpr unsigned kNote = 40 / ORM_RANDOM_SHARE;

// The fees printed before the totals and the total, in hundredths. A fee ends a line in a field of
// 14 characters, an amount of works in one of 16; the cost of tests is neither.
std::pair<long long, long long> OnorariETotale(const std::string& report) {
  static const std::regex onorario("(?:L\\. |€)([ ]*-?[0-9.]+(?:,[0-9]+)?)$");
  long long onorari = 0;
  for (std::size_t da = 0, a = 0; da < report.size(); da = a + 1) {
    a = report.find('\n', da);
    const std::string riga = report.substr(da, a - da);
    std::smatch m;
    if (!std::regex_search(riga, m, onorario) || m[1].length() != 14) continue;
    if (riga.starts_with("TOTALE (Onorari")) return {onorari, Centesimi(riga)};
    if (!riga.starts_with("Per ") && !riga.starts_with("geotecniche")) onorari += Centesimi(riga);
  }
  return {onorari, -1};
}

TEST_F(TutteLeNote, PrintedFeesAddUp) {
  for (const Prova& prova : kProve)
    for (unsigned seme = 0; seme < kNote; ++seme) {
      CasoNote criteri(seme, true);
      stato.criteri = criteri.CriteriDiCalcolo();
      stato.ModoLire = criteri.Uno(2);
      CasoNote caso(seme, stato.ModoLire);
      const std::string bytes = prova.bytes(caso);
      Prepara(prova.codice, bytes);
      std::string report;
      ASSERT_NO_THROW(report = Report(Calcola(prova.codice))) << prova.codice << '\n' << bytes;
      const auto [onorari, totale] = OnorariETotale(report);
      // In Euro the last cent of a binary sum may be missed; in a note of testing a Lira, because
      // fees and compensations are cut apart.
      const bool collaudo = prova.codice == std::string("COA");
      ASSERT_NEAR(static_cast<double>(onorari), static_cast<double>(totale),
                  !stato.ModoLire ? 1
                  : collaudo      ? 100
                                  : 0)
          << prova.codice << ' ' << seme << '\n'
          << report;
    }
}

TEST_F(TutteLeNote, CutFileIsAFailure) {
  stato.criteri.TipoPercentualeCompensi = "NUOVA TARIFFA";
  for (const Prova& prova : kProve) {
    CasoNote caso(11, true);
    const std::string intero = prova.bytes(caso);
    for (std::size_t n = 0; n < intero.size() - 3; n += 1 + n % 29) {
      Prepara(prova.codice, intero.substr(0, n));
      ASSERT_THROW(Calcola(prova.codice), RuntimeFailure) << prova.codice << ' ' << n;
    }
  }
}

// The notes in Euro of the versions that the menus leave out.
class SenzaMenu : public TutteLeNote {
 protected:
  void Confronta(const char* codice, const std::string& nome) {
    std::string cartella = ORM_SOURCE_DIR "/tests/scripts/";
    cartella += codice[0] == 'C' ? "cs2" : "sc2";
    const WorkFolder attesi(cartella);
    stato.folder.Replace("UTENTE.DAG",
                         WorkFolder(ORM_SOURCE_DIR "/data/sample").Read("UTENTE.DAG"));
    stato.folder.Replace("INT.DAP", WorkFolder(ORM_SOURCE_DIR "/tests/scripts").Read("INT.DAP"));
    Prepara(codice, attesi.Read(nome + "_INP.DAP"));
    Calcola(codice).uscita.Save(stato.folder, "OUT.DOC");
    EXPECT_EQ(FromWindows1252(stato.folder.Read("OUT.DOC")),
              FromWindows1252(attesi.Read(nome + ".DOC")));
  }
};

TEST_F(SenzaMenu, StaticTestingByTheTablesOf2001) {
  Confronta("CS2", "lire");
  stato.ModoLire = false;
  stato.criteri.TipoPercentualeCompensi = "NUOVA TARIFFA";
  Confronta("CS2", "euro");
}

TEST_F(SenzaMenu, SiteSafetyOf2001InEuro) {
  stato.ModoLire = false;
  Confronta("SC2", "incrementi_euro");
  stato.criteri.TipoPercentualeCompensi = "ASSEGNATA";
  Confronta("SC2", "interrotta_euro");
}

// A hundred thousand million Lire or a hundred million Euro fit the columns with the dearest of
// everything. The dialogs take ten times as much, for which a fee may be too long.
TEST_F(TutteLeNote, GreatAmountsFit) {
  stato.criteri.TipoPercentualeCompensi = "ASSEGNATA";
  stato.criteri.PercCompensiAssegnata = 60;
  for (const bool lire : {true, false}) {
    stato.ModoLire = lire;
    const double massimo = lire ? 99999999999.0 : 99999999.99;
    DatiStc stc{99999999, 99999, 99999, 99999999, 99999999, 2013, 12, 0.25};
    DatiAgp agp{"NUOVE ANALISI", "SI", "5", {{"1", "e", massimo}}};
    DatiCos cos;
    cos.ImportoTotaleCS = cos.ImportoCS[4] = massimo;
    cos.Maggiorazione.fill(100);
    cos.RevisioneCalcoli = "SI";
    for (int i = 1; i <= 4; ++i) {
      cos.Lotti.push_back({static_cast<std::int16_t>(5 * i), {1, 2, 3, 4, 5}});
      for (const char* periodo : {"1", "2", "3", "4", "5"})
        cos.Righe.push_back({"1", "e", periodo, massimo});
    }
    DatiGeotecnici geo;
    geo.MaggiorazioneParziale = "SI";
    geo.Gruppi = {{1, {5}}};
    geo.Righe = {{"4", "5", massimo, massimo, "T", "a+b+c+d+e+f"}};
    geo.CostoIndagini = massimo;
    DatiSicurezza sic;
    sic.Gruppi = {{1, {5}}};
    sic.Lotti = {{"1", "e", "5", massimo, massimo, "11111", std::string(25, '1'), "111111"}};
    for (const auto& [codice, bytes] :
         {std::pair{"STC", Bytes(stc, {})}, std::pair{"AGP", Bytes(agp, {})},
          std::pair{"CS1", Bytes(cos, {})}, std::pair{"GEO", Bytes(geo, {})},
          std::pair{"SC1", Bytes(sic, {})}}) {
      Prepara(codice, bytes);
      EXPECT_NO_THROW(Calcola(codice)) << codice;
    }
  }
}

}  // namespace
}  // namespace orm
