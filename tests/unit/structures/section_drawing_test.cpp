// Drawings of sections: scale, places of labels, stresses beyond their limit.
#include "structures/sections/drawing_t.h"

#include <gtest/gtest.h>

#include <cmath>

#include "dialogs/form.h"

namespace orm {
namespace {

TEST(SectionDrawing, ScaleIsSixUnitsHighAndLessThanFifteenWide) {
  EXPECT_DOUBLE_EQ(ScalaDisegno(60, 150), 11);  // 15 units at 10 cm: one cm more
  EXPECT_DOUBLE_EQ(ScalaDisegno(60, 400), 27);  // 26.67 cm would give just 15
  for (double W = 100; W < 5000; W += 7.3) {
    const double scale = ScalaDisegno(12, W);
    EXPECT_LT(W / scale, 15);
    EXPECT_TRUE(scale == 2 || W / (scale - 1) >= 15) << W;
  }
  EXPECT_TRUE(std::isfinite(ScalaDisegno(1, 1e200)));
}

TEST(SectionDrawing, LabelsKeepTheirDistanceAndStayWithinTheLimits) {
  const std::vector<double> heights{7, 6.9, 6.8, 2, 1.1, 1};
  for (const bool upward : {false, true}) {
    const auto labels = QuoteEtichette(heights, 0.5, upward, 0.9, 9);
    for (std::size_t i = 1; i < labels.size(); ++i)
      EXPECT_LE(labels[i], labels[i - 1] - 0.5 + 1e-9);
    EXPECT_LE(labels.front(), 9);
    EXPECT_EQ(labels[upward ? 2 : 0], heights[upward ? 2 : 0]);  // the one that does not give way
  }
  EXPECT_GE(QuoteEtichette(heights, 0.5, false, 0.9, 9).back(), 0.9);
}

TEST(SectionDrawing, OnlyAFailingStressIsRedAndDashed) {
  Form form("frm", "");
  Lavagna lavagna(form, "Lavagna", 30, 10, 720);
  const DatiSezione dati{30, 30, 30, 50, 0, 0, {{{10, 47}}}, 5e5};
  RisultatiSezione risultati;
  VerificaSezioneT(dati, risultati);
  const auto red = [&](double steel) {
    DisegnaSezioneT(lavagna, dati, risultati, {steel, 97.5}, true);
    int lines = 0;
    for (const DrawOperation& op : lavagna.Operations())
      lines += op.colour == Colour{255, 0, 0} && op.points[0].x == 23.5 ? 1 : 0;
    return lines;
  };
  EXPECT_EQ(red(2600), 0);
  EXPECT_EQ(red(risultati.massimo), 1);  // equal to its limit
  EXPECT_EQ(red(0), 0);                  // nothing to draw against
}

}  // namespace
}  // namespace orm
