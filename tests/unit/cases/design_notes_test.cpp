// The notes of design and supervision: properties over random data, and the rules at their edges.
#include "cases/esl/esl.h"
#include "cases/pdl/pdl.h"
#include "cases/pdl/rules.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/files/closing_line.h"
#include "tests/unit/cases/note_test.h"
#include "tests/unit/cases/random_case.h"

namespace orm {
namespace {

constexpr int kNote = 150;

void CalcoloSoloEsl(RunState& stato) {
  double totale = 0;
  CalcoloEsl(stato, totale);
}

class NoteConLotti : public NoteTest {
 protected:
  NoteConLotti() { stato.FileInp = "INP.DAP"; }

  template <class Dati>
  std::string Scritto(Dati& dati) {
    DataWriter file;
    Chiusura chiusura;
    Campi(file, dati);
    CampiChiusura(file, chiusura);
    stato.folder.Replace(stato.FileInp, file.Bytes(), Durability::Remakeable);
    return file.Bytes();
  }

  template <class Dati>
  Stampato Nota(Dati dati, void (*calcolo)(RunState&)) {
    Scritto(dati);
    stato.NumFileUscita = ReportPrinter();
    calcolo(stato);
    return LeggiStampato(Report());
  }

  void CriteriA(Caso& caso) {
    stato.criteri.TipoPercentualeCompensi = caso.Fra({"NUOVA TARIFFA", "ASSEGNATA"});
    stato.criteri.PercCompensiAssegnata = caso.Fino(61);
    stato.criteri.AliquoteDirezioneLavori = caso.Fra({"UNITE", "SEPARATE"});
    stato.criteri.CompensiSuSorveglianza = caso.Fra({"SI", "NO"});
    stato.criteri.CompensiSuMaggiorazione = caso.Fra({"SI", "NO"});
    stato.ModoLire = caso.Uno(2);
  }

  // Lines add up to their entry of the summary, the entries to the total; an entry is printed
  // exactly when it is not 0. In Euro a total may miss the last cent of its binary sum.
  void TuttoTorna(const Stampato& s) {
    long long totale = 0;
    for (const auto& [voce, importo] : s.righe) {
      const auto entrata = s.riepilogo.find(voce);
      EXPECT_EQ(importo, entrata == s.riepilogo.end() ? 0LL : entrata->second) << voce;
    }
    for (const auto& [voce, importo] : s.riepilogo) {
      EXPECT_TRUE(s.righe.contains(voce)) << voce;
      totale += importo;
    }
    EXPECT_NEAR(static_cast<double>(totale), static_cast<double>(s.totale), stato.ModoLire ? 0 : 1);
  }
};

TEST_F(NoteConLotti, PrintedFeesOfPublicWorksAddUp) {
  for (unsigned seme = 0; seme < kNote; ++seme) {
    Caso criteri(seme, true);
    CriteriA(criteri);
    Caso caso(seme, stato.ModoLire);
    TuttoTorna(Nota(caso.Esl(), CalcoloSoloEsl));
    ASSERT_FALSE(HasFailure()) << seme << '\n' << Report();
  }
}

TEST_F(NoteConLotti, PrintedFeesOfDesignAndSupervisionAddUp) {
  for (unsigned seme = 0; seme < kNote; ++seme) {
    Caso criteri(seme, true);
    CriteriA(criteri);
    Caso caso(seme, stato.ModoLire);
    TuttoTorna(Nota(caso.Pdl(), CalcoloPdl));
    ASSERT_FALSE(HasFailure()) << seme << '\n' << Report();
  }
}

TEST_F(NoteConLotti, ReadingAndWritingChangesNoByte) {
  for (unsigned seme = 0; seme < kNote; ++seme) {
    Caso caso(seme, seme % 2 == 0);
    DatiEsl esl = caso.Esl(), eslLetto;
    const std::string prima = Scritto(esl);
    LeggiParcella(stato, eslLetto);
    ASSERT_EQ(Scritto(eslLetto), prima);
    DatiPdl pdl = caso.Pdl(), pdlLetto;
    const std::string dopo = Scritto(pdl);
    LeggiParcella(stato, pdlLetto);
    ASSERT_EQ(Scritto(pdlLetto), dopo);
  }
}

// A file that ends early, wherever, is told from a whole one; a number may lose digits unseen.
TEST_F(NoteConLotti, CutFileIsAFailure) {
  Caso caso(7, true);
  DatiPdl dati = caso.Pdl();
  const std::string intero = Scritto(dati);
  for (std::size_t n = 0; n < intero.size() - 3; n += 1 + n % 5) {
    stato.folder.Replace(stato.FileInp, intero.substr(0, n), Durability::Remakeable);
    ASSERT_THROW(CalcoloPdl(stato), RuntimeFailure) << n;
  }
}

// Whatever byte is changed, there is a report or a message, and nothing else.
TEST_F(NoteConLotti, DamagedFileIsReadOrRefused) {
  std::mt19937 motore(3);
  stato.criteri.TipoPercentualeCompensi = "NUOVA TARIFFA";
  for (unsigned giro = 0; giro < 400; ++giro) {
    Caso caso(giro % 20, true);
    DatiEsl esl = caso.Esl();
    DatiPdl pdl = caso.Pdl();
    std::string bytes = giro % 2 != 0 ? Scritto(esl) : Scritto(pdl);
    for (int k = 0; k < 3; ++k)
      bytes[motore() % bytes.size()] = "0123456789\",-.+aTxE\r\n"[motore() % 21];
    stato.folder.Replace(stato.FileInp, bytes, Durability::Remakeable);
    stato.NumFileUscita = ReportPrinter();
    try {
      giro % 2 != 0 ? CalcoloSoloEsl(stato) : CalcoloPdl(stato);
    } catch (const RuntimeFailure&) {
    }
  }
}

// The greatest sums of works that the dialogs take, in one lot or in twenty, still fit the columns
// of the report, with the most expensive class, services, staff and compensations.
TEST_F(NoteConLotti, GreatestAmountsOfTheDialogsFit) {
  stato.criteri.TipoPercentualeCompensi = "ASSEGNATA";
  stato.criteri.PercCompensiAssegnata = 60;
  for (const bool lire : {true, false})
    for (const std::size_t lotti :
         {1U, 20U, 0U}) {  // 0: one lot whose design gives a great percentage
      stato.ModoLire = lire;
      const bool minimo = lotti == 0;
      const std::size_t n = minimo ? 1 : lotti;
      const double importo = (lire ? 99999999999.0 : 99999999.99) / static_cast<double>(n);
      const double progetto = minimo ? 1 : importo;
      DatiEsl esl;
      esl.CertificatoRegolare = "SI";
      esl.Lotti.resize(n, {"1", "e", progetto, importo, "a+b+c+d+e+f+g+h+i+l+l1",
                           "m+n+o1+o2+o3+o4+o5+p+q+r1+r2+r3+r4+s+l2+l3+l4", 15});
      for (std::size_t i = 0; i < std::min<std::size_t>(n, 10); ++i) {
        esl.Lotti[i].MisureContabilita = "SI";
        esl.Lotti[i].CoefficienteContabilita = 1.4;
      }
      EXPECT_NO_THROW(Nota(esl, CalcoloSoloEsl)) << lire << lotti;

      DatiPdl pdl;
      pdl.IncaricoParziale = pdl.CertificatoRegolare = "SI";
      pdl.PeriodoMassimo = "5";
      RigaPdl riga;
      riga.Classe = "1";
      riga.Categoria = "e";
      riga.ImportoProgetto = riga.ImportoEspropri = riga.ImportoSuppletivi = progetto;
      riga.ImportoEsproPerizie = riga.ImportoDirezione = importo;
      riga.FlagSorveglianza = riga.FlagRevisione = riga.FlagPerizie = "S";
      riga.CoefficienteContabilita = 1.4;
      riga.NumeroPerizie = 1;
      riga.Perizie[0].LavoriSuppletivi = riga.Perizie[0].LavoriVariati =
          riga.Perizie[0].EsproPerizia = importo;
      for (std::size_t i = 0; i < n; ++i) {
        riga.FlagContabilita = i < 10 ? "S" : "N";
        pdl.Righe.push_back(riga);
        pdl.Lotti.push_back({static_cast<std::int16_t>(i + 1), {5}});
      }
      EXPECT_NO_THROW(Nota(pdl, CalcoloPdl)) << lire << lotti;
    }
}

RigaPdl Riga(double progetto, double direzione) {
  RigaPdl r;
  r.Classe = "1";
  r.Categoria = "c";
  r.PeriodoTariffario = "5";
  r.ImportoProgetto = progetto;
  r.ImportoDirezione = direzione;
  r.NumeroPerizie = 0;
  return r;
}

DatiPdl UnLotto(std::vector<RigaPdl> righe) {
  DatiPdl d;
  d.Lotti = {{static_cast<std::int16_t>(righe.size()),
              std::vector<std::int16_t>(righe.size(), std::int16_t{5})}};
  d.Righe = std::move(righe);
  return d;
}

// Two rows in the same period take the percentage of the whole lot: together they cost what one
// row costs, but for the Lira that each cut may take.
TEST_F(NoteConLotti, LotInTwoEqualPeriodsCostsAsOne) {
  stato.criteri.TipoPercentualeCompensi = "NUOVA TARIFFA";
  for (const double importo : {10000000.0, 900000000.0, 5000000000.0}) {
    const Stampato uno = Nota(UnLotto({Riga(importo, importo)}), CalcoloPdl);
    const Stampato due =
        Nota(UnLotto({Riga(importo / 2, importo / 2), Riga(importo / 2, importo / 2)}), CalcoloPdl);
    EXPECT_NEAR(uno.totale / 100.0, due.totale / 100.0, 2) << importo;
    EXPECT_LE(due.totale, uno.totale);
    EXPECT_GT(uno.totale, 0);
  }
}

// Above the limit each row pays the whole limit: two rows cost more than one.
TEST_F(NoteConLotti, AboveTheLimitEachRowPaysTheLimit) {
  stato.criteri.TipoPercentualeCompensi = "NUOVA TARIFFA";
  const Stampato uno = Nota(UnLotto({Riga(8000000000, 0)}), CalcoloPdl);
  const Stampato due = Nota(UnLotto({Riga(4000000000, 0), Riga(4000000000, 0)}), CalcoloPdl);
  EXPECT_GT(due.totale, uno.totale);
}

TEST(BasiDelLottoPdl, FollowTheKindOfNote) {
  const std::vector<RigaPdl> meno = {Riga(-100, 40), Riga(50, 30)}, piu = {Riga(100, 250)};
  const auto base = [](const std::vector<RigaPdl>& righe, const char* tipo) {
    return BasiDelLotto(righe, tipo);
  };
  EXPECT_EQ(base(meno, "NORMALE").BaseProgetto, 150);
  EXPECT_EQ(base(meno, "NORMALE").BaseDirezione, 150);
  EXPECT_EQ(base(meno, "CONSUNTIVA").BaseDirezione, 70);
  EXPECT_EQ(base(meno, "INTERROTTA").BaseDirezione, 70);
  EXPECT_EQ(base(meno, "SCISSA").BaseDirezione, 70);
  for (const char* tipo : {"NORMALE", "CONSUNTIVA", "INTERROTTA"}) {
    EXPECT_EQ(base(piu, tipo).EccedenzaLavori, 150) << tipo;
    EXPECT_EQ(base(piu, tipo).BaseProgetto, 250) << tipo;
    EXPECT_EQ(base(piu, tipo).BaseDirezione, 250) << tipo;
  }
  EXPECT_EQ(base(piu, "SCISSA").EccedenzaLavori, 0);
  EXPECT_EQ(base(piu, "SCISSA").BaseProgetto, 100);
}

// A variation explains the works beyond the design.
TEST(BasiDelLottoPdl, VariationLeavesNoExcess) {
  RigaPdl riga = Riga(100, 250);
  riga.ImportoSuppletivi = 50;
  riga.ImportoEspropri = 7;
  const std::vector<RigaPdl> righe = {riga};
  const BasiLotto basi = BasiDelLotto(righe, "NORMALE");
  EXPECT_EQ(basi.BaseProgetto, 107);
  EXPECT_EQ(basi.BaseDirezione, 250);
  EXPECT_EQ(basi.EccedenzaLavori, 0);
}

TEST(QuoteDellaDirezione, RunAlongTheLimit) {
  const PercentualiTabellaA p{{3, "3%"}, {2, "2%"}, true};
  const auto quote = [&p](double importo, double prima) {
    std::string testo;
    for (const QuotaImporto& q : QuoteProgressive(p, importo, prima, 100))
      testo += NumberText(q.importo) + " " + q.percentuale.testo + " ";
    return testo;
  };
  EXPECT_EQ(quote(40, 0), "40 3% ");
  EXPECT_EQ(quote(100, 0), "100 3% ");
  EXPECT_EQ(quote(101, 0), "100 3% 1 2% ");
  EXPECT_EQ(quote(30, 90), "10 3% 20 2% ");
  EXPECT_EQ(quote(30, 100), "30 2% ");
}

TEST(ServiziPdl, LettersStandAtEverySecondCharacter) {
  EXPECT_EQ(TestoPrestazioni(ServiziFatti("P", "l+a+f"), GruppoServiziPdl::Progetto), "a+f");
  EXPECT_EQ(TestoPrestazioni(ServiziFatti("P", "l+a+f"), GruppoServiziPdl::Direzione), "l");
  EXPECT_EQ(TestoPrestazioni(ServiziFatti("T", ""), GruppoServiziPdl::Direzione), "g+h+i+l");
  EXPECT_EQ(TestoPrestazioni(ServiziFatti("P", ""), GruppoServiziPdl::Progetto), "");
  EXPECT_EQ(TestoPrestazioni(ServiziFatti("P", "abc"), GruppoServiziPdl::Progetto), "a+c");
  EXPECT_THROW(ServiziFatti("P", "a+k"), RuntimeFailure);
}

}  // namespace
}  // namespace orm
