// Drawings of sections: scale, places of labels, stresses beyond their limit.
#include "structures/sections/drawing_t.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

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

// What a section shows once it is verified.
std::vector<DrawOperation> Drawn(const DatiSezione& dati) {
  Form form("frm", "");
  Lavagna lavagna(form, "Lavagna", 30, 10, 504);  // as the dialog has it
  RisultatiSezione risultati;
  VerificaSezioneT(dati, risultati);
  DisegnaSezioneT(lavagna, dati, risultati, {2600, 97.5}, true);
  return lavagna.Operations();
}

TEST(SectionDrawing, NoLineToALabelGoesThroughAnotherOne) {
  DatiSezione eight{30, 30, 30, 80, 0, 0, {}, 4e6};
  eight.strati = {{{6.28, 3},
                   {6.28, 6},
                   {37.7, 9},
                   {9.42, 68},
                   {9.42, 71},
                   {18.1, 74},
                   {63.33, 77},
                   {4.62, 40}}};
  const auto drawn = Drawn(eight);
  for (const DrawOperation& line : drawn)
    for (const DrawOperation& text : drawn) {
      if (line.kind != DrawOperation::Kind::Line || line.colour != Colour{110, 110, 110}) continue;
      if (!text.text.ends_with(" cmq.")) continue;
      const Point &from = line.points[0], &to = line.points[1], &label = text.points[0];
      if (from.x > label.x + 0.5 || to.x < label.x + 0.5) continue;
      const double at = from.y + (to.y - from.y) * (label.x + 0.5 - from.x) / (to.x - from.x);
      EXPECT_GT(std::fabs(at - label.y), 0.3) << text.text;
    }
}

TEST(SectionDrawing, TheAxisOfAWideSectionReachesOutToItsName) {
  const auto drawn = Drawn({400, 30, 150, 90, 12, 14, {{{6, 3}, {6, 77}}}, 3e6});
  double right = 0, axis = 0, name = 0;
  for (const DrawOperation& op : drawn) {
    if (op.kind == DrawOperation::Kind::Polygon && op.points.size() == 12)
      for (const Point& p : op.points) right = std::max(right, p.x);
    const bool blue = op.colour == Colour{0, 0, 255};
    if (blue && op.kind == DrawOperation::Kind::Line) axis = op.points[1].x;
    if (blue && op.kind == DrawOperation::Kind::Text) name = op.points[0].x;
  }
  EXPECT_GT(right, 13);
  EXPECT_GT(name, right + 0.3);
  EXPECT_GT(axis, name + 1);
}

}  // namespace
}  // namespace orm
