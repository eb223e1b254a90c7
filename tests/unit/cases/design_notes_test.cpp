// The notes of design and supervision: their rules at the edges.
#include "cases/esl/data.h"
#include "cases/esl/esl.h"
#include "cases/pdl/data.h"
#include "cases/pdl/pdl.h"
#include "cases/pdl/rules.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

class NoteConLotti : public NoteTest {
 protected:
  NoteConLotti() { nota.scaglioni = ScaglioniCompensi(WorkFolder(ORM_SOURCE_DIR "/data")); }

  static long long Totale(const Parcella& stampata) {
    return Centesimi(Report(stampata), "TOTALE (Onorari");
  }
};

// A tenth of the greatest sums that the dialogs take, in one lot or in twenty, fits the columns of
// the report, with the most expensive class, services, staff and compensations.
TEST_F(NoteConLotti, GreatAmountsFit) {
  nota.criteri.TipoPercentualeCompensi = "ASSEGNATA";
  nota.criteri.PercCompensiAssegnata = 60;
  for (const bool lire : {true, false})
    for (const std::size_t lotti :
         {1U, 20U, 0U}) {  // 0: one lot whose design gives a great percentage
      nota.ModoLire = lire;
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
      EXPECT_NO_THROW(CalcoloEsl(nota, esl)) << lire << lotti;

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
      EXPECT_NO_THROW(CalcoloPdl(nota, pdl)) << lire << lotti;
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
  nota.criteri.TipoPercentualeCompensi = "NUOVA TARIFFA";
  for (const double importo : {10000000.0, 900000000.0, 5000000000.0}) {
    const RigaPdl mezza = Riga(importo / 2, importo / 2);
    const long long uno = Totale(CalcoloPdl(nota, UnLotto({Riga(importo, importo)})));
    const long long due = Totale(CalcoloPdl(nota, UnLotto({mezza, mezza})));
    EXPECT_TRUE(uno > 0 && due <= uno && due >= uno - 200) << importo;
  }
}

// Above the limit each row pays the whole limit: two rows cost more than one.
TEST_F(NoteConLotti, AboveTheLimitEachRowPaysTheLimit) {
  nota.criteri.TipoPercentualeCompensi = "NUOVA TARIFFA";
  const RigaPdl mezza = Riga(4000000000, 0);
  EXPECT_GT(Totale(CalcoloPdl(nota, UnLotto({mezza, mezza}))),
            Totale(CalcoloPdl(nota, UnLotto({Riga(8000000000, 0)}))));
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

// In units of the limit.
TEST_F(NoteConLotti, SupervisionRunsAlongTheLimit) {
  const PercentualiTabellaA p{{3, "3%"}, {2, "2%"}, true};
  const double limite = nota.LimiteTabellaA();
  const auto quote = [&](double importo, double prima) {
    std::string testo;
    for (const QuotaImporto& q : nota.QuoteProgressive(p, importo * limite, prima * limite))
      testo += NumberText(q.importo / limite) + " " + q.percentuale.testo + " ";
    return testo;
  };
  EXPECT_EQ(quote(0.4, 0), "0.4 3% ");
  EXPECT_EQ(quote(1, 0), "1 3% ");
  EXPECT_EQ(quote(1.01, 0), "1 3% 0.01 2% ");
  EXPECT_EQ(quote(0.3, 0.9), "0.1 3% 0.2 2% ");
  EXPECT_EQ(quote(0.3, 1), "0.3 2% ");
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
