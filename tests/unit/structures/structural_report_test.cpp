// Reports of several elements: their columns, their file, their numbers.
#include "structures/structural_report.h"

#include <gtest/gtest.h>

#include "runtime/failure.h"
#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

class StartingPlayer : public FakePlayer {
 public:
  int started = 0;
  void StartProgram(const std::string&, const std::string&) override { ++started; }
};

TEST(StructuralReport, Columns) {
  ReportPrinter r;
  StampaSezione(r, "FRECCE");
  StampaDato(r, "Luce netta :  ", "4,50", " ml");
  StampaValore(r, "Taglio", 1234.567, "###0.00", "Kg");
  StampaValoreConLimite(r, "Permanente", 0.25, "###0.00", "cm", kAccettata, 0.9);
  EXPECT_EQ(r.Contents(),
            "\r\n== FRECCE ==\r\n"
            "Luce netta :  4,50 ml\r\n"
            "Taglio                           1234,57 Kg\r\n"
            "Permanente                       0,25    cm      Accettata : 0,90    cm\r\n");
}

TEST(StructuralReport, EveryRunBeginsItsFileAnewAndGoesOn) {
  const TemporaryFolder place;
  StartingPlayer player;
  RunState stato(player, WorkFolder(place.Path()));
  stato.folder.Replace("OUT_A.DOC", "di ieri");
  RelazioneStrutturale a(stato, "OUT_A.DOC"), b(stato, "OUT_B.DOC");
  const auto stampa = [](ReportPrinter& testo, bool primo, int numero) {
    testo.Text(primo ? "in testa" : "in coda").Bare(numero).EndLine();
  };
  EXPECT_FALSE(a.Accodata());
  a.Stampa(stampa, "ACCODATA");
  EXPECT_TRUE(player.messages.empty());
  EXPECT_EQ(stato.folder.Read("OUT_A.DOC"), "in testa 1 \r\n");
  EXPECT_TRUE(a.Accodata());
  EXPECT_EQ(a.Numero(), 2);
  RelazioneStrutturale(stato, "OUT_A.DOC").Stampa(stampa, "ACCODATA");
  ASSERT_EQ(player.messages.size(), 1U);
  EXPECT_EQ(player.messages[0].text, "ACCODATA");
  EXPECT_EQ(stato.folder.Read("OUT_A.DOC"), "in testa 1 \r\nin coda 2 \r\n");
  EXPECT_EQ(b.Numero(), 1);
  // A file that was taken away meanwhile: the numbers go on, the heading is wanted again.
  stato.folder.Remove("OUT_A.DOC");
  EXPECT_FALSE(a.Accodata());
  EXPECT_EQ(a.Numero(), 3);
  EXPECT_EQ(player.started, 2);
  RunState another(player, WorkFolder(place.Path()));
  EXPECT_EQ(RelazioneStrutturale(another, "OUT_A.DOC").Numero(), 1);
}

TEST(StructuralReport, AFailureLeavesFileAndNumber) {
  StartingPlayer player;
  RunState stato(player, WorkFolder("/questa/cartella/manca"));
  RelazioneStrutturale relazione(stato, "OUT_A.DOC");
  EXPECT_THROW(relazione.Stampa([](ReportPrinter& testo, bool, int) { testo.Line("uno"); }),
               RuntimeFailure);
  EXPECT_EQ(relazione.Numero(), 1);
  EXPECT_EQ(player.started, 0);
}

}  // namespace
}  // namespace orm
