// Amounts in words.
#include "tariff/amount_in_words.h"

#include <gtest/gtest.h>

#include <set>

#include "runtime/failure.h"

namespace orm {
namespace {

std::string Lettere(double importo) {
  std::string testo;
  ImportoInLettere(testo, importo);
  return testo;
}

TEST(AmountInWords, WholeAmounts) {
  EXPECT_EQ(Lettere(1234.50), "milleduecentotrentaquattro/50");
  EXPECT_EQ(Lettere(21000), "ventunomila/00");
  EXPECT_EQ(Lettere(1), "uno/00");
  EXPECT_EQ(Lettere(100), "cento/00");
  EXPECT_EQ(Lettere(1000000), "unmilione/00");
  EXPECT_EQ(Lettere(1000000000), "unmiliardo/00");
  EXPECT_EQ(Lettere(2002001101.07), "duemiliardiduemilionimillecentouno/07");
  EXPECT_EQ(Lettere(999999999.99),
            "novecentonovantanovemilioninovecentonovantanovemilanovecentonovantanove/99");
}

TEST(AmountInWords, NothingAndLessThanOne) {
  EXPECT_EQ(Lettere(0), "zero/0");
  EXPECT_EQ(Lettere(0.5), "/50");
}

TEST(AmountInWords, CutsItsArgument) {
  double importo = 12.349;
  std::string testo;
  ImportoInLettere(testo, importo);
  EXPECT_EQ(testo, "dodici/34");
  EXPECT_EQ(importo, 12.34);
}

TEST(AmountInWords, TooGreat) {
  EXPECT_THROW(Lettere(1e12), RuntimeFailure);
  EXPECT_THROW(Lettere(1e14), RuntimeFailure);
}

TEST(Hundreds, VowelsMeet) {
  EXPECT_EQ(CentinaioInLettere(21), "ventuno");
  EXPECT_EQ(CentinaioInLettere(28), "ventotto");
  EXPECT_EQ(CentinaioInLettere(23), "ventitre");
  EXPECT_EQ(CentinaioInLettere(80), "ottanta");
  EXPECT_EQ(CentinaioInLettere(108), "centootto");
  EXPECT_EQ(CentinaioInLettere(117), "centodiciassette");
  EXPECT_EQ(CentinaioInLettere(380), "trecentoottanta");
  EXPECT_EQ(CentinaioInLettere(0), "");
}

TEST(Hundreds, AllAreDifferent) {
  std::set<std::string> words;
  for (std::int16_t n = 0; n < 1000; ++n) words.insert(CentinaioInLettere(n));
  EXPECT_EQ(words.size(), 1000U);
  EXPECT_THROW(CentinaioInLettere(1000), RuntimeFailure);
  EXPECT_THROW(CentinaioInLettere(-1), RuntimeFailure);
}

}  // namespace
}  // namespace orm
