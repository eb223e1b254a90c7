// Places of labels: free of lines, outlines and each other, whatever the section.
#include "structures/label_places.h"

#include <gtest/gtest.h>

#include <cmath>

#include "dialogs/form.h"
#include "structures/sections/drawing_t.h"

namespace orm {
namespace {

// A web from 2 to 4 with an edge at height 5 between 0 and 8.
TEST(LabelPlaces, StepAsideForOutlinesLinesAndEachOther) {
  PostiEtichette posti(0.5, 9, 30, [](double) { return std::vector<double>{2, 4}; });
  posti.Riga(0, 8, 5);
  std::vector<Riquadro> all;
  for (const double y : {8.0, 7.9, 5.1, 5.0, 4.9, 0.7, 0.6, 0.5}) {
    const Riquadro r = posti.Posti({{{3}, y, 2.5, 0.8, {}}})[0];
    EXPECT_TRUE(r.x1 > 4 && (r.y1 >= 5 || r.y2 <= 5)) << y;
    EXPECT_LT(std::fabs((r.y1 + r.y2) / 2 - y), 1.5) << y;
    for (const Riquadro& before : all) EXPECT_FALSE(r.Tocca(before)) << y;
    all.push_back(r);
  }
  // Nothing there: where it belongs.
  EXPECT_DOUBLE_EQ(posti.Posti({{{12}, 3, 1, 1, {}}})[0].x1, 12);
}

bool Cross(const DrawOperation& a, const DrawOperation& b) {
  const auto side = [](const DrawOperation& line, const Point& p) {
    const Point &from = line.points[0], &to = line.points[1];
    return (to.x - from.x) * (p.y - from.y) > (to.y - from.y) * (p.x - from.x);
  };
  return side(a, b.points[0]) != side(a, b.points[1]) &&
         side(b, a.points[0]) != side(b, a.points[1]);
}

// Areas, stresses and the axis of every shape, of sections in use and of odd ones: no letter or rim
// on the outline, none on another text.
TEST(LabelPlaces, TextsOfASectionStandFree) {
  Form form("frm", "");
  Lavagna lavagna(form, "Lavagna", 30, 10, 504);
  int seen = 0;
  for (const double H : {12.0, 30.0, 80.0, 300.0})
    for (const double b : {10.0, 30.0, 90.0})
      for (const double B : {b, 100.0, 400.0})
        for (const double M : {5e5, -5e5}) {
          const double s = B > b ? H / 5 : 0;
          const DatiSezione dati{
              std::max(B, b), b, b, H, s, 0, {{{6, 3}, {4, H / 2}, {9, H - 3}}}, M};
          RisultatiSezione risultati;
          VerificaSezioneT(dati, risultati);
          ASSERT_EQ(risultati.esito, EsitoT::Fatto);
          DisegnaSezioneT(lavagna, dati, risultati, {2600, 97.5}, true);
          lavagna.SetFont(8);
          std::vector<Riquadro> areas;
          const DrawOperation* outline = nullptr;
          for (const DrawOperation& op : lavagna.Operations()) {
            if (op.kind == DrawOperation::Kind::Polygon && op.width == 2) outline = &op;
            if (op.text.ends_with("cmq.") || op.text == "asse neutro" || op.text == "cls") {
              const auto [x, y] = op.points[0];
              const double width = 0.9 * lavagna.TextWidth(op.text);
              const double x1 = op.anchor == DrawOperation::Anchor::Right ? x - width : x;
              areas.push_back({x1, x1 + width, y - 0.3, y + 0.3});
            }
          }
          ASSERT_TRUE(outline != nullptr && areas.size() == 9);
          const double axis = 1 + (H - risultati.asse) / ScalaDisegno(H, std::max(B, b));
          areas.push_back({0.4, 15.6, axis, axis});
          for (std::size_t i = 0; i < areas.size(); ++i, ++seen) {
            for (std::size_t j = 0; j < i; ++j)
              EXPECT_FALSE(areas[i].Tocca(areas[j])) << H << b << B << M << i << j;
            if (i == areas.size() - 1) continue;
            for (std::size_t k = 0; k < outline->points.size(); ++k) {
              const Point &p = outline->points[k],
                          &q = outline->points[(k + 1) % outline->points.size()];
              const Riquadro edge{std::min(p.x, q.x), std::max(p.x, q.x), std::min(p.y, q.y),
                                  std::max(p.y, q.y)};
              const Riquadro rim{areas[i].x1, areas[i].x2, areas[i].y1 - 0.3, areas[i].y2 + 0.3};
              EXPECT_FALSE((p.y == q.y ? rim : areas[i]).Tocca(edge))
                  << H << " " << b << " " << B << " " << M;
            }
          }
        }
  EXPECT_EQ(seen, 4 * 3 * 3 * 2 * 10);
}

// Double T sections from slender ones to a flange of 4 m; no line goes through a label either.
TEST(LabelPlaces, LinesToAreasDoNotCross) {
  Form form("frm", "");
  Lavagna lavagna(form, "Lavagna", 30, 10, 504);
  for (const double B : {40.0, 100.0, 250.0, 400.0})
    for (const double M : {3e6, -3e6}) {
      const DatiSezione dati{
          B, 30, B / 2, 90, 12, 14, {{{6.03, 3}, {3.08, 17}, {2.26, 68}, {6.53, 77}}}, M};
      RisultatiSezione risultati;
      VerificaSezioneT(dati, risultati);
      DisegnaSezioneT(lavagna, dati, risultati, {2600, 97.5}, true);
      std::vector<const DrawOperation*> lines;
      std::vector<DrawOperation> labels;  // a line through each
      lavagna.SetFont(8);
      for (const DrawOperation& op : lavagna.Operations()) {
        const bool right = op.anchor == DrawOperation::Anchor::Right;
        const auto [x, y] = op.points[0];
        const double far = x + (right ? -0.9 : 0.9) * lavagna.TextWidth(op.text);
        if (op.text.ends_with(" cmq."))
          labels.emplace_back().points = {{x + (right ? -0.1 : 0.1), y}, {far, y + 0.1}};
        if (op.colour != Colour{110, 110, 110} || op.points[0].x > 23) continue;
        for (const DrawOperation* other : lines) EXPECT_FALSE(Cross(op, *other)) << B << " " << M;
        lines.push_back(&op);
      }
      EXPECT_EQ(lines.size(), 4U);
      for (const DrawOperation& label : labels)
        for (const DrawOperation* line : lines) EXPECT_FALSE(Cross(*line, label)) << B << " " << M;
    }
}

}  // namespace
}  // namespace orm
