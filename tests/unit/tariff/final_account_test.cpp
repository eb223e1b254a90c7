// The final account: whole reports, worked out apart and read line by line.
#include <gtest/gtest.h>

#include <array>
#include <random>

#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

using FinalAccount = NoteTest;

// clang-format off
// What most accounts have alike stands whole in the first ones, here for the others.
const std::string kTitolo = Page(R"(
================================ TOTALI ================================|
)");
const std::string kFirma = Page(R"(
                                                       =================|
Cosenza, li 15/03/2002|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
)");
const std::string kParere = Page(R"(
                                   ESPRIME PARERE                         |
              che i compensi richiesti, per le prestazioni espletate|
              e riassunte nelle voci dichiarate dallo stesso profes_|
              sionista sono  rispondenti  alla tariffa professionale |
              ed ammontano a :|
)");

TEST_F(FinalAccount, LirePlain) {
  nota.ChiudiParcella(1000000.9, 0.9);  // fractions of a Lira are dropped each on its own
  EXPECT_EQ(Report(), Page(R"(
================================ TOTALI ================================|
TOTALE (Onorari e Compensi)                            L.      1.000.000|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L.      1.000.000|
ed in EURO                                                        516,46|
                                                       =================|
Cosenza, li 15/03/2002|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
)"));
}

TEST_F(FinalAccount, LireWithEverything) {
  nota.chiusura = {7.5, 100000, "", 1};
  Criteri& criteri = nota.criteri;
  criteri.StampaParere = criteri.StampaSpeseAggiuntive = "SI";
  criteri.SpesaInarcassa = criteri.SpesaInps = criteri.SpesaIva = criteri.SpesaTassaParere = "SI";
  criteri.QuotaFissaParere = 50;
  criteri.QuotaPercentualeParere = 1.5;
  criteri.PresidenteOrdine = "Dott. Ing. Carlo Bianchi";
  nota.ChiudiParcella(3000000, 1200000);
  EXPECT_EQ(Report(), Page(R"(
================================ TOTALI ================================|
TOTALE (Onorari e Compensi)                            L.      4.200.000|
Rid. del 7,5% Art.4 comma 12bis L. 155/89              L.        315.000|
TOTALE RIDOTTO                                         L.      3.885.000|
a detrarre ACCONTI                                     L.        100.000|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L.      3.785.000|
ed in EURO                                                      1.954,79|
                                                       =================|
Cosenza, li 15/03/2002|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
|
|
========================================================================|
ALTRE SPESE PER IL COMMITTENTE|
Contributo INARCASSA 2%                                L.          39,09|
Contributo INPS 4%                                     L.          78,19|
I.V.A. 20%                                             L.         414,41|
Tassa Rilascio Parere                                  L.          79,32|
     Totale onere finanziario Committente              L.       2.565,80|
========================================================================|
|
|
                    Il Consiglio dell'Ordine degli INGEGNERI              |
                        della Provincia di COSENZA|
                               vista l'istanza del                        |
              Dott. Ing. Mario Rossi|
                                   ESPRIME PARERE                         |
              che i compensi richiesti, per le prestazioni espletate|
              e riassunte nelle voci dichiarate dallo stesso profes_|
              sionista sono  rispondenti  alla tariffa professionale |
              ed ammontano a :|
              Compensi (Onorari e Spese) : Euro 1.954,79|
              ( Euro millenovecentocinquantaquattro/79 )|
              Oltre 2% INARCASSA e I.V.A.|
              Tassa Rilascio parere Ordine Euro 79,32|
                Cosenza, li 15/03/2002|
                                            IL  PRESIDENTE|
                                       Dott. Ing. Carlo Bianchi|
)"));
}

TEST_F(FinalAccount, LireAgreedReductionOnTheFees) {
  nota.chiusura = {10, 0, "CONCORDATA", 2};
  nota.ChiudiParcella(3000000, 1200000);
  EXPECT_EQ(Report(), kTitolo + Page(R"(
TOTALE (Onorari e Compensi)                            L.      4.200.000|
  Riduzione concordata del 10 % sugli Onorari          L.        300.000|
TOTALE RIDOTTO                                         L.      3.900.000|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L.      3.900.000|
ed in EURO                                                      2.014,18|
)") + kFirma);
}

TEST_F(FinalAccount, LireReductionOnCompensationsThatAreNotThere) {
  nota.chiusura = {20, 0, "", 3};
  nota.ChiudiParcella(3000000, 0);
  EXPECT_EQ(Report(), kTitolo + Page(R"(
TOTALE (Onorari e Compensi)                            L.      3.000.000|
Rid. del 20% Art.4 comma 12bis L. 155/89 sui Compensi  L.              0|
TOTALE RIDOTTO                                         L.      3.000.000|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L.      3.000.000|
ed in EURO                                                      1.549,37|
)") + kFirma);
}

TEST_F(FinalAccount, EuroOfAnArchitect) {
  nota.utente.Professione = "Architetto";
  nota.ModoLire = false;
  nota.chiusura = {12.55, 425.31, "CONCORDATA", 2};
  Criteri& criteri = nota.criteri;
  criteri.StampaParere = criteri.StampaSpeseAggiuntive = criteri.SpesaIva = "SI";
  criteri.PresidenteOrdine = "Arch. Verdi";
  nota.ChiudiParcella(1234.567, 345.678);
  EXPECT_EQ(Report(), kTitolo + Page(R"(
TOTALE (Onorari e Compensi)                            €      1.580,24|
  Riduzione concordata del 12,55 % sugli Onorari       €        154,93|
TOTALE RIDOTTO                                         €      1.425,31|
a detrarre ACCONTI                                     €        425,31|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     €      1.000,00|
                                                       =================|
Cosenza, li 15/03/2002|
                                          IL  PROFESSIONISTA|
                                        Dott. Arch. Mario Rossi|
|
|
========================================================================|
ALTRE SPESE PER IL COMMITTENTE|
I.V.A. 20%                                             €        200,00|
     Totale onere finanziario Committente              €      1.200,00|
========================================================================|
|
|
                    Il Consiglio dell'Ordine degli ARCHITETTI             |
                        della Provincia di COSENZA|
                               vista l'istanza del                        |
              Dott. Arch. Mario Rossi|
)") + kParere + Page(R"(
              Compensi (Onorari e Spese) : Euro 1.000,00|
              ( Euro mille/00 )|
              Oltre 2% INARCASSA e I.V.A.|
              Tassa Rilascio parere Ordine Euro 0|
                Cosenza, li 15/03/2002|
                                                  IL  PRESIDENTE|
                                                    Arch. Verdi|
)"));
}

TEST_F(FinalAccount, AdvancesAboveTheTotalEndTheAccount) {
  nota.chiusura = {0, 2000000, "", 1};
  nota.criteri.StampaParere = nota.criteri.StampaSpeseAggiuntive = "SI";
  nota.ChiudiParcella(1000000, 0);
  EXPECT_EQ(Report(), kTitolo + Page(R"(
TOTALE (Onorari e Compensi)                            L.      1.000.000|
a detrarre ACCONTI                                     L.      2.000.000|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L.     -1.000.000|
ed in EURO                                                       -516,44|
)") + kFirma);
}

// The label of the reduction reaches beyond its column; without a city there is no place and date.
TEST_F(FinalAccount, LongLabelAndNoCity) {
  nota.utente.Citta = "";
  nota.ModoLire = false;
  nota.chiusura = {12.55, 0, "", 2};
  nota.criteri.StampaParere = "SI";
  nota.criteri.QuotaFissaParere = 50;
  nota.ChiudiParcella(1000, 0);
  EXPECT_EQ(Report(), kTitolo + Page(R"(
TOTALE (Onorari e Compensi)                            €      1.000,00|
Rid. del 12,55% Art.4 comma 12bis L. 155/89 sugli Onorari|
                                                       €        125,50|
TOTALE RIDOTTO                                         €        874,50|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     €        874,50|
                                                       =================|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
|
|
                    Il Consiglio dell'Ordine degli INGEGNERI              |
                        della Provincia di COSENZA|
                               vista l'istanza del                        |
              Dott. Ing. Mario Rossi|
)") + kParere + Page(R"(
              Compensi (Onorari e Spese) : Euro 874,50|
              ( Euro ottocentosettantaquattro/50 )|
              Oltre 2% INARCASSA e I.V.A.|
              Tassa Rilascio parere Ordine Euro 50,00|
                                                        IL  PRESIDENTE|
                                                               |
)"));
}
// clang-format on

// What is printed is what is summed, to the cent, in Lire and in Euro.
TEST_F(FinalAccount, PrintedLinesAddUpToPrintedTotals) {
  std::mt19937 random(19490302);
  nota.criteri.StampaSpeseAggiuntive = nota.criteri.SpesaInarcassa = nota.criteri.SpesaInps =
      nota.criteri.SpesaIva = nota.criteri.SpesaTassaParere = "SI";
  nota.criteri.QuotaPercentualeParere = 1.7;
  for (int i = 0; i < 300; ++i) {
    nota.ModoLire = i % 2 == 0;
    const double scale = nota.ModoLire ? 1000 : 1;
    const auto amount = [&](unsigned most) { return random() % most / 997.0 * scale; };
    nota.chiusura = {random() % 2000 / 100.0, amount(100000), "CONCORDATA",
                     static_cast<std::int16_t>(random() % 3 + 1)};
    nota.uscita = {};
    nota.ChiudiParcella(amount(9000000) + 500 * scale, amount(2000000));
    const std::string report = Report();
    const auto printed = [&](const char* label) { return Centesimi(report, label); };
    const bool ridotto = nota.chiusura.PercDiRiduzione != 0;
    const long long net = printed("COMPETENZE");
    ASSERT_EQ(printed("TOTALE (Onorari e Compensi)") - printed("  Riduzione concordata"),
              printed(ridotto ? "TOTALE RIDOTTO" : "TOTALE (Onorari e Compensi)"))
        << report;
    ASSERT_EQ(
        printed(ridotto ? "TOTALE RIDOTTO" : "TOTALE (Onorari e Compensi)") - printed("a detrarre"),
        net)
        << report;
    ASSERT_EQ((nota.ModoLire ? printed("ed in EURO") : net) + printed("Contributo INARCASSA") +
                  printed("Contributo INPS") + printed("I.V.A.") + printed("Tassa"),
              printed("     Totale onere"))
        << report;
  }
}

TEST_F(FinalAccount, SummaryLeavesOutZerosAndCutsTheOthers) {
  nota.ModoLire = false;
  std::array<Conto, 6> importi = {1000.999, 0, 20.5, 3, 0, 4.009};
  nota.StampaRiepilogoPrestazioni("PD", importi);
  // clang-format off
  EXPECT_EQ(Report(), Page(R"(
============================== RIEPILOGO ===============================|
Per PROGETTAZIONE                                      €      1.000,99|
Per SORVEGLIANZA                                       €         20,50|
Per MISURE E CONTABILITÀ                               €          3,00|
Per CERTIFICATO REGOLARE ESECUZIONE                    €          4,00|
)"));
  // clang-format on
  EXPECT_EQ(importi[0], 1000.99);
  EXPECT_EQ(importi[5], 4);
}

}  // namespace
}  // namespace orm
