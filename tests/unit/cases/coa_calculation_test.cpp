// Testing notes: where their two tiers begin.
#include <gtest/gtest.h>

#include "cases/coa/coa.h"
#include "cases/coa/data.h"
#include "tariff/files/closing_line.h"
#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

class CoaCalculation : public NoteTest {
 protected:
  // The report of a note, with the steps of compensations that an installation brings.
  std::string Calcola(DatiCoa dati) {
    stato.folder.Replace("CAC.CFG", WorkFolder(ORM_SOURCE_DIR "/data").Read("CAC.CFG"));
    stato.FileInp = "INP.DAP";
    DataWriter corpo;
    Campi(corpo, dati);
    ScriviParcella(stato.folder, stato.FileInp, corpo, {});
    stato.NumFileUscita = {};
    CalcoloCoa(stato);
    return Report();
  }

  int Lines(const std::string& report, const std::string& beginning) const {
    int count = 0;
    for (auto at = report.find("\n" + beginning); at != std::string::npos;
         at = report.find("\n" + beginning, at + 1))
      ++count;
    return count;
  }
};

// Two tiers begin one Lira beyond 5,000 million, and only under the decree of 1987.
TEST_F(CoaCalculation, WhereTheTiersBegin) {
  EXPECT_EQ(Lines(Calcola({5, 5000000000, 1, 0, 0}), "Percentuale ("), 1);
  EXPECT_EQ(Lines(Calcola({5, 5000000001, 1, 0, 0}), "Percentuale ("), 2);
  EXPECT_EQ(Lines(Calcola({4, 6000000000, 1, 0, 0}), "Percentuale ("), 1);
  stato.ModoLire = false;
  EXPECT_EQ(Lines(Calcola({5, 2582284.49, 1, 0, 0}), "Percentuale ("), 1);
  EXPECT_EQ(Lines(Calcola({5, 2582284.50, 1, 0, 0}), "Percentuale ("), 2);
}

}  // namespace
}  // namespace orm
