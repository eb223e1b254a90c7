// The frame of a report.
#include "tariff/report.h"

#include <gtest/gtest.h>

#include "runtime/failure.h"
#include "tests/unit/cases/note_test.h"

namespace orm {
namespace {

using ReportFrame = NoteTest;

TEST_F(ReportFrame, AmountField) {
  EXPECT_EQ(nota.StringaImporto("1.000", TipoImporto::Onorari), "L.          1.000");
  EXPECT_EQ(nota.StringaImporto("1.000", TipoImporto::Lavori), "L.            1.000");
  nota.ModoLire = false;
  EXPECT_EQ(nota.StringaImporto("1.000", TipoImporto::Onorari), "€         1.000");
  EXPECT_EQ(nota.StringaImporto("12.345.678,901", TipoImporto::Onorari), "€12.345.678,901");
  EXPECT_THROW(nota.StringaImporto("12.345.678,9012", TipoImporto::Onorari), RuntimeFailure);
}

// clang-format off
TEST_F(ReportFrame, FeeLines) {
  std::string corta = " Onorario", lunga = "  Onorario per la redazione del progetto esecutivo  e particolari";
  double primo = 1234.9, secondo = 5;
  nota.StampaRigaOnorario(3, corta, primo);
  nota.StampaRigaOnorario(1, lunga, secondo);
  // One blank parts a label that is too long even without its blanks.
  nota.StampaRigaOnorario(1, std::string(54, 'x'), secondo);
  EXPECT_EQ(Report(), Page(R"(
   Onorario                                            L.          1.234|
  Onorarioperlaredazionedelprogettoesecutivoeparticolari L.              5|
xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx L.              5|
)"));
  EXPECT_EQ(primo, 1234);
  EXPECT_EQ(lunga, "  Onorarioperlaredazionedelprogettoesecutivoeparticolari");
}

// Sixty characters with their blanks, fifty-two without: the amount finds its column again. Letters
// with accents count once.
TEST_F(ReportFrame, LongLabelThatFitsWithoutItsBlanks) {
  std::string lunga = "Onorario per la contabilità e le misure dei lavori à corpo  :";
  double valore = 10;
  nota.ModoLire = false;
  nota.StampaRigaOnorario(1, lunga, valore);
  EXPECT_EQ(Report(), Page(R"(
Onorarioperlacontabilitàelemisuredeilavoriàcorpo:      €         10,00|
)"));
}

TEST_F(ReportFrame, Formulas) {
  double valore = 10.7;
  nota.StampaFormula(std::string(43, 'x'), valore);
  nota.StampaFormula(std::string(44, 'x'), valore);
  EXPECT_EQ(Report(), Page(R"(
xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx            L.             10|
xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx L.             10|
)"));
  EXPECT_EQ(valore, 10);
}

TEST_F(ReportFrame, TextsAlignedOnTheirComma) {
  nota.StampaAllineataVirgola("1.234,5", 20);
  nota.StampaAllineataVirgola("7", 20);
  nota.StampaAllineataVirgola("0,125", 20);
  EXPECT_EQ(Report(), Page(R"(
              1.234,5|
                  7|
                  0,125|
)"));
}

TEST_F(ReportFrame, Heading) {
  nota.ApriParcella("per le prestazioni relative a :");
  EXPECT_EQ(Report(), Page(R"(
              PARCELLA DELLE COMPETENZE PROFESSIONALI|
  ( Legge 2-marzo-1949 n.° 143 e succes. modifiche ed integrazioni )|
dovute da : Comune di Rende|
all' Ingegnere Mario Rossi|
per le prestazioni relative a :|
Scuola media|
Delibera n. 12|
)"));
}
// clang-format on

TEST_F(ReportFrame, HeadingOfEmptyTexts) {
  nota.intestazione = {};
  nota.ApriParcella("relative a :");
  EXPECT_TRUE(Report().ends_with("relative a :\n\n"));
}

}  // namespace
}  // namespace orm
