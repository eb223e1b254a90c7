// Reports of several elements: their file and their numbers.
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

void Stampa(RunState& stato, const char* file) {
  RelazioneStrutturale(stato, file)
      .Stampa([](ReportPrinter& testo, bool primo,
                 int numero) { testo.Text(primo ? "in testa" : "in coda").Bare(numero).EndLine(); },
              "ACCODATA");
}

TEST(StructuralReport, AFileTakenAwayMeanwhileBeginsAnewAndTheNumbersGoOn) {
  const TemporaryFolder place;
  StartingPlayer player;
  RunState stato(player, WorkFolder(place.Path()));
  Stampa(stato, "OUT_A.DOC");
  Stampa(stato, "OUT_A.DOC");
  EXPECT_EQ(player.messages.size(), 1U);
  stato.folder.Remove("OUT_A.DOC");
  Stampa(stato, "OUT_A.DOC");
  Stampa(stato, "OUT_B.DOC");
  EXPECT_EQ(player.messages.size(), 1U);
  EXPECT_EQ(stato.folder.Read("OUT_A.DOC"), "in testa 3 \r\n");
  EXPECT_EQ(stato.folder.Read("OUT_B.DOC"), "in testa 1 \r\n");
}

TEST(StructuralReport, AFailureLeavesFileAndNumber) {
  StartingPlayer player;
  RunState stato(player, WorkFolder("/questa/cartella/manca"));
  EXPECT_THROW(Stampa(stato, "OUT_A.DOC"), RuntimeFailure);
  EXPECT_EQ(RelazioneStrutturale(stato, "OUT_A.DOC").Numero(), 1);
  EXPECT_EQ(player.started, 0);
}

}  // namespace
}  // namespace orm
