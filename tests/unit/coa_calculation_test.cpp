// Testing notes: whole reports, worked out apart with exact fractions and read line by line.
#include <gtest/gtest.h>

#include "cases/coa.h"
#include "cases/coa_data.h"
#include "tariff/closing_line.h"
#include "tests/unit/note_test.h"

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

// clang-format off
TEST_F(CoaCalculation, LireOneTier) {
  EXPECT_EQ(Calcola({5, 1234567890, 1, 20, 10}), Page(R"(
              PARCELLA DELLE COMPETENZE PROFESSIONALI|
  ( Legge 2-marzo-1949 n.° 143 e succes. modifiche ed integrazioni )|
dovute da : Comune di Rende|
all' Ingegnere Mario Rossi|
per le prestazioni di Collaudo amministrativo relative a :|
Scuola media|
Delibera n. 12|
======================= SPECIFICA DEGLI IMPORTI ========================|
IMPORTO TOTALE LAVORI   :                      L.    1.234.567.890|
=============== COMPENSI ACCESSORI CONGLOBATI (art. 13) ================|
Percentuale : 39,37448562% su                  L.    1.234.567.890|
Percentuale ( da Tabella C ) = 0,15023811  su 1.234.567.890|
========================== ONORARI E COMPENSI ==========================|
1 - ONORARIO  (D.M. 11-giugno-1987) |
0,15023811% x 1.234.567.890 x 1,3937448562             L.      2.585.106|
2 - Maggiorazione per collaudo in corso d'opera :  20%|
0,2 x 2.585.106 =                                      L.        517.021|
3 - Onorario a vacazione per revisione tecnico contabile|
num. pagine 10 x 0,25 x 110000 =                       L.        275.000|
================================ TOTALI ================================|
TOTALE (Onorari e Compensi)                            L.      3.377.126|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L.      3.377.126|
ed in EURO                                                      1.744,14|
                                                       =================|
Cosenza, li 15/03/2002|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
)"));
}

// The two fees rise to the amount, the second at the lower percentage beyond the table.
TEST_F(CoaCalculation, LireTwoTiers) {
  EXPECT_EQ(Calcola({5, 7500000000, 1, 0, 30}), Page(R"(
              PARCELLA DELLE COMPETENZE PROFESSIONALI|
  ( Legge 2-marzo-1949 n.° 143 e succes. modifiche ed integrazioni )|
dovute da : Comune di Rende|
all' Ingegnere Mario Rossi|
per le prestazioni di Collaudo amministrativo relative a :|
Scuola media|
Delibera n. 12|
======================= SPECIFICA DEGLI IMPORTI ========================|
IMPORTO TOTALE LAVORI   :                      L.    7.500.000.000|
=============== COMPENSI ACCESSORI CONGLOBATI (art. 13) ================|
Percentuale : 31,5% su                         L.    7.500.000.000|
Percentuale ( da Tabella C ) = 0,15023811  su 5.000.000.000|
Percentuale ( da Tabella C ) = 0,12519843  su 2.500.000.000|
========================== ONORARI E COMPENSI ==========================|
1 - ONORARIO  (D.M. 11-giugno-1987) |
0,15023811% x 5.000.000.000 x 1,315                    L.      9.878.155|
0,12519843% x 2.500.000.000 x 1,315                    L.      4.115.898|
2 - Onorario a vacazione per revisione tecnico contabile|
num. pagine 30 x 0,25 x 110000 =                       L.        825.000|
================================ TOTALI ================================|
TOTALE (Onorari e Compensi)                            L.     14.819.052|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L.     14.819.052|
ed in EURO                                                      7.653,40|
                                                       =================|
Cosenza, li 15/03/2002|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
)"));
}

TEST_F(CoaCalculation, EuroOneTier) {
  stato.ModoLire = false;
  EXPECT_EQ(Calcola({5, 100000, 1, 12.5, 0}), Page(R"(
              PARCELLA DELLE COMPETENZE PROFESSIONALI|
  ( Legge 2-marzo-1949 n.° 143 e succes. modifiche ed integrazioni )|
dovute da : Comune di Rende|
all' Ingegnere Mario Rossi|
per le prestazioni di Collaudo amministrativo relative a :|
Scuola media|
Delibera n. 12|
======================= SPECIFICA DEGLI IMPORTI ========================|
IMPORTO TOTALE LAVORI   :                      €      100.000,00|
=============== COMPENSI ACCESSORI CONGLOBATI (art. 13) ================|
Percentuale : 47,50328% su                     €      100.000,00|
Percentuale ( da Tabella C ) = 0,241559  su 100.000,00|
========================== ONORARI E COMPENSI ==========================|
1 - ONORARIO  (D.M. 11-giugno-1987) |
0,241559% x 100.000,00 x 1,4750328                     €        356,30|
2 - Maggiorazione per collaudo in corso d'opera :  12,5%|
0,125 x 356,30 =                                       €         44,53|
================================ TOTALI ================================|
TOTALE (Onorari e Compensi)                            €        400,83|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     €        400,83|
                                                       =================|
Cosenza, li 15/03/2002|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
)"));
}

// The figures behind the percentages are in Lire, the limit twice converted; the vacation fee counts
// its Lire as Euro and is capped.
TEST_F(CoaCalculation, EuroTwoTiers) {
  stato.ModoLire = false;
  stato.criteri.TipoPercentualeCompensi = "ASSEGNATA";
  stato.criteri.PercCompensiAssegnata = 30;
  EXPECT_EQ(Calcola({5, 5000000, 1, 10, 3}), Page(R"(
              PARCELLA DELLE COMPETENZE PROFESSIONALI|
  ( Legge 2-marzo-1949 n.° 143 e succes. modifiche ed integrazioni )|
dovute da : Comune di Rende|
all' Ingegnere Mario Rossi|
per le prestazioni di Collaudo amministrativo relative a :|
Scuola media|
Delibera n. 12|
======================= SPECIFICA DEGLI IMPORTI ========================|
IMPORTO TOTALE LAVORI   :                      €    5.000.000,00|
=============== COMPENSI ACCESSORI CONGLOBATI (art. 13) ================|
Percentuale : 30%|
Percentuale ( da Tabella C ) = 0,15023811  su 9.681.350.000.000,00|
Percentuale ( da Tabella C ) = 0,12519843  su 4.681.349.991,00|
========================== ONORARI E COMPENSI ==========================|
1 - ONORARIO  (D.M. 11-giugno-1987) |
ONORARIO  (D.M. 11-giugno-1987)  :|
0,15023811% x 2.582.284,50 x 1.3                       €      5.043,44|
0,12519843% x 2.417.715,50 x 1.3                       €      3.935,02|
2 - Maggiorazione per collaudo in corso d'opera :  10%|
0,1 x 8.978,46 =                                       €        897,84|
3 - Onorario a vacazione per revisione tecnico contabile|
0,40 x 8.978,46 / 1.3 =                                €      2.762,60|
================================ TOTALI ================================|
TOTALE (Onorari e Compensi)                            €     12.638,90|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     €     12.638,90|
                                                       =================|
Cosenza, li 15/03/2002|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
)"));
}

// Compensations of 0 %: neither block nor coefficient.
TEST_F(CoaCalculation, Certificate) {
  stato.criteri.TipoPercentualeCompensi = "ASSEGNATA";
  EXPECT_EQ(Calcola({3, 80000000, 2, 0, 0}), Page(R"(
              PARCELLA DELLE COMPETENZE PROFESSIONALI|
  ( Legge 2-marzo-1949 n.° 143 e succes. modifiche ed integrazioni )|
dovute da : Comune di Rende|
all' Ingegnere Mario Rossi|
per le prestazioni di Certificazione di Regolare Esecuzione relative a :|
Scuola media|
Delibera n. 12|
======================= SPECIFICA DEGLI IMPORTI ========================|
IMPORTO TOTALE LAVORI   :                      L.       80.000.000|
Percentuale ( da Tabella C ) = 0,266153  su 80.000.000|
========================== ONORARI E COMPENSI ==========================|
1 - ONORARIO  (D.M. 13-aprile-1976) |
0,266153% x 80.000.000                                 L.        212.922|
================================ TOTALI ================================|
TOTALE (Onorari e Compensi)                            L.        212.922|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L.        212.922|
ed in EURO                                                        109,97|
                                                       =================|
Cosenza, li 15/03/2002|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
)"));
}

// A surcharge above the 30 % that the form speaks of is taken as it is.
TEST_F(CoaCalculation, CappedVacation) {
  EXPECT_EQ(Calcola({4, 45000000, 1, 50, 100}), Page(R"(
              PARCELLA DELLE COMPETENZE PROFESSIONALI|
  ( Legge 2-marzo-1949 n.° 143 e succes. modifiche ed integrazioni )|
dovute da : Comune di Rende|
all' Ingegnere Mario Rossi|
per le prestazioni di Collaudo amministrativo relative a :|
Scuola media|
Delibera n. 12|
======================= SPECIFICA DEGLI IMPORTI ========================|
IMPORTO TOTALE LAVORI   :                      L.       45.000.000|
=============== COMPENSI ACCESSORI CONGLOBATI (art. 13) ================|
Percentuale : 53,6% su                         L.       45.000.000|
Percentuale ( da Tabella C ) = 0,427974  su 45.000.000|
========================== ONORARI E COMPENSI ==========================|
1 - ONORARIO  (D.M. 29-giugno-1981) |
0,427974% x 45.000.000 x 1,536                         L.        295.815|
2 - Maggiorazione per collaudo in corso d'opera :  50%|
0,5 x 295.815 =                                        L.        147.907|
3 - Onorario a vacazione per revisione tecnico contabile|
0,40 x 295.815 / 1,536 =                               L.         77.035|
================================ TOTALI ================================|
TOTALE (Onorari e Compensi)                            L.        520.756|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L.        520.756|
ed in EURO                                                        268,95|
                                                       =================|
Cosenza, li 15/03/2002|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
)"));
}

// No fee line; surcharge and vacation stand with zeros, and the note closes.
TEST_F(CoaCalculation, NoAmount) {
  EXPECT_EQ(Calcola({5, 0, 1, 20, 5}), Page(R"(
              PARCELLA DELLE COMPETENZE PROFESSIONALI|
  ( Legge 2-marzo-1949 n.° 143 e succes. modifiche ed integrazioni )|
dovute da : Comune di Rende|
all' Ingegnere Mario Rossi|
per le prestazioni di Collaudo amministrativo relative a :|
Scuola media|
Delibera n. 12|
======================= SPECIFICA DEGLI IMPORTI ========================|
IMPORTO TOTALE LAVORI   :                      L.                0|
1 - Maggiorazione per collaudo in corso d'opera :  20%|
0,2 x 0 =                                              L.              0|
2 - Onorario a vacazione per revisione tecnico contabile|
0,40 x 0 /  =                                          L.              0|
================================ TOTALI ================================|
TOTALE (Onorari e Compensi)                            L.              0|
COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L.              0|
ed in EURO                                                             0|
                                                       =================|
Cosenza, li 15/03/2002|
                                           IL  PROFESSIONISTA|
                                         Dott. Ing. Mario Rossi|
)"));
}

// clang-format on

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
