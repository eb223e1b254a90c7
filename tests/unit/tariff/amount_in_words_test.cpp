// Amounts in words.
#include "tariff/closing/amount_in_words.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "runtime/failure.h"

namespace orm {
namespace {

std::string Lettere(double importo) {
  std::string testo;
  ImportoInLettere(testo, importo);
  return testo;
}

TEST(AmountInWords, WholeAndCents) {
  for (const auto& [importo, testo] : std::map<double, std::string>{
           {0, "zero/0"},
           {0.5, "/50"},
           {1, "uno/00"},
           {100, "cento/00"},
           {1234.50, "milleduecentotrentaquattro/50"},
           {21000, "ventunomila/00"},
           {1000000, "unmilione/00"},
           {1000000000, "unmiliardo/00"},
           {2002001101.07, "duemiliardiduemilionimillecentouno/07"},
           {999999999.99,
            "novecentonovantanovemilioninovecentonovantanovemilanovecentonovantanove/99"}})
    EXPECT_EQ(Lettere(importo), testo);
  EXPECT_THROW(Lettere(1e12), RuntimeFailure);
  EXPECT_THROW(Lettere(1e14), RuntimeFailure);
}

TEST(AmountInWords, CutsItsArgument) {
  double importo = 12.349;
  std::string testo;
  ImportoInLettere(testo, importo);
  EXPECT_EQ(testo, "dodici/34");
  EXPECT_EQ(importo, 12.34);
}

TEST(Hundreds, VowelsMeet) {
  const std::map<std::int16_t, std::string> parole = {
      {21, "ventuno"},    {28, "ventotto"},          {23, "ventitre"},         {80, "ottanta"},
      {108, "centootto"}, {117, "centodiciassette"}, {380, "trecentoottanta"}, {0, ""}};
  for (const auto& [numero, testo] : parole) EXPECT_EQ(CentinaioInLettere(numero), testo);
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
