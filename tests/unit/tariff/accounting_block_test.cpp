#include "tariff/accounting_block.h"

#include "runtime/failure.h"
#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

class BloccoContabilita : public NoteTest {
 protected:
  void Calcola(std::vector<RigaContabilita> righe) {
    nota.contemp = std::move(righe);
    nota.CalcoloMisureContabilita(onorario, testo);
  }

  Conto onorario;
  std::string testo;
};

TEST_F(BloccoContabilita, SortsByPeriodAndTakesEqualRowsTogether) {
  Calcola({{5, 1, 4000000}, {1, 0.7, 1000000}, {5, 1, 4000000}});
  EXPECT_EQ(Report(), Page(R"(
MISURE E CONTABILITÀ LAVORI ( tab. E )|
0,96600% x 0,70 x       1.000.000 =           6.762|
1,83965% x 1,00 x       4.000.000 =          73.586|
1,68634% x 1,00 x       4.000.000 =          67.453|
                      ------------------------------ |
         Totali          9.000.000           147.801|
)"));
  EXPECT_EQ(testo, "147.801");
  EXPECT_GT(onorario, 147801);  // not cut
}

// Rows of one period keep the order in which they came, and so the bands that they fall in.
TEST_F(BloccoContabilita, KeepsTheOrderOfCoefficients) {
  Calcola({{5, 1.4, 5000000}, {5, 0.7, 1}, {5, 1.4, 1}});
  EXPECT_NE(Report().find("x 1,40 x       5.000.000"), std::string::npos);
  EXPECT_NE(Report().find("x 1,40 x               1 =               0\n1,68634% x 0,70"),
            std::string::npos);
}

// A sum that falls back opens its bands again, and the part used of the band that it fell out of is
// still taken off.
TEST_F(BloccoContabilita, NegativeAmountGoesBackOnTheScale) {
  Calcola({{1, 1, 8000000}, {2, 1.2, -4000000}, {3, 1, 10000000}});
  EXPECT_EQ(Report(), Page(R"(
MISURE E CONTABILITÀ LAVORI ( tab. E )|
0,96600% x 1,00 x       5.000.000 =          48.300|
0,88550% x 1,00 x       3.000.000 =          26.565|
1,11090% x 1,20 x       1.000.000 =          13.330|
1,27753% x 1,00 x       1.000.000 =          12.775|
1,17107% x 1,00 x       9.000.000 =         105.396|
                      ------------------------------ |
         Totali         14.000.000           206.367|
)"));
}

TEST_F(BloccoContabilita, EleventhRowIsAFailure) {
  EXPECT_NO_THROW(Calcola(std::vector<RigaContabilita>(10)));
  EXPECT_THROW(Calcola(std::vector<RigaContabilita>(11)), RuntimeFailure);
}

}  // namespace
}  // namespace orm
