#include "structures/sections/drawing_t.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "runtime/numbers.h"
#include "structures/sections/picture_pens.h"

namespace orm {
namespace {

double WidestOf(const DatiSezione& z) { return std::max({z.B, z.b, z.Bi}); }

double WidthAt(const DatiSezione& z, double depth) {
  if (z.s > 0 && depth <= z.s) return z.B;
  if (z.si > 0 && depth >= z.H - z.si) return z.Bi;
  return z.b;
}

// Lines of the schematic on the right of the outline: their name behind a line with two ticks.
void VerticalMeasure(Lavagna& lavagna, double x, double y1, double y2, const std::string& name) {
  lavagna.DrawLine(x, y1, x, y2);
  lavagna.DrawLine(x - 0.2, y1, x + 0.2, y1);
  lavagna.DrawLine(x - 0.2, y2, x + 0.2, y2);
  lavagna.DrawText(x + 0.4, (y1 + y2) / 2 + 0.3, name);
}

void HorizontalMeasure(Lavagna& lavagna, double x1, double x2, double y, const std::string& name) {
  lavagna.DrawLine(x1, y, x2, y);
  lavagna.DrawLine(x1, y - 0.2, x1, y + 0.2);
  lavagna.DrawLine(x2, y - 0.2, x2, y + 0.2);
  lavagna.DrawText(x2 + 0.4, y, name, Anchor::Left);
}

void SchemaMeasures(Lavagna& lavagna, const FormaT& forma) {
  lavagna.SetColour(kGrey);
  // Beyond the names of the flanges.
  VerticalMeasure(lavagna, forma.alaSuperiore || forma.alaInferiore ? 18 : 9, 1, 8,
                  "Altezza totale");
  if (forma.alaSuperiore) {
    HorizontalMeasure(lavagna, 1, 8, 8.7, "Larghezza ala superiore");
    VerticalMeasure(lavagna, 9, 7, 8, "Spessore ala superiore");
  }
  if (forma.alaInferiore) {
    HorizontalMeasure(lavagna, 1, 8, 0.4, "Larghezza ala inferiore");
    VerticalMeasure(lavagna, 9, 1, 2, "Spessore ala inferiore");
  }
  // The web's thickness where there is room for it.
  if (!forma.alaInferiore) {
    HorizontalMeasure(lavagna, 4, 5, 0.4, forma.alaSuperiore ? "Spessore anima" : "Base");
  } else if (!forma.alaSuperiore) {
    HorizontalMeasure(lavagna, 4, 5, 8.7, "Spessore anima");
  } else {
    HorizontalMeasure(lavagna, 4, 5, 4.5, "");
    lavagna.DrawText(3.7, 4.5, "Spessore anima", Anchor::Right);
  }
}

// Height, covers of the outmost layers, flanges; the widths where they are.
void Dimensions(DisegnoFlessione& disegno, const DatiSezione& z) {
  const double W = WidestOf(z);
  std::vector<QuotaSezione> covers, flanges;
  double first = z.H, last = 0;
  for (const auto& [A, d] : z.strati)
    if (A != 0) first = std::min(first, d), last = std::max(last, d);
  if (first > 0 && first <= z.H / 2) covers.push_back({0, first, "c"});
  if (last < z.H && last > z.H / 2) covers.push_back({last, z.H, "c"});
  if (z.s > 0) flanges.push_back({0, z.s, "s"});
  if (z.si > 0) flanges.push_back({z.H - z.si, z.H, "si"});
  disegno.QuoteVerticali({0, z.H, "H"}, covers, flanges);
  const auto width = [&](double b, const char* name) {
    return QuotaSezione{(W - b) / 2, (W + b) / 2, name};
  };
  const bool rectangle = z.s == 0 && z.si == 0;
  if (z.s > 0) disegno.QuotaLarghezza(width(z.B, "B"), 0);
  if (z.si > 0) disegno.QuotaLarghezza(width(z.Bi, "Bi"), z.H);
  if (z.s > 0 && z.si > 0)
    disegno.QuotaAnima(width(z.b, "b"), (z.s + z.H - z.si) / 2);
  else
    disegno.QuotaLarghezza(width(z.b, rectangle ? "B" : "b"), z.si > 0 ? 0 : z.H);
}

}  // namespace

std::vector<Point> ContornoT(const DatiSezione& z) {
  const double W = WidestOf(z);
  struct Band {
    double width, bottom;
  };
  std::vector<Band> bands;
  if (z.s > 0) bands.push_back({z.B, z.s});
  bands.push_back({z.b, z.H - z.si});
  if (z.si > 0) bands.push_back({z.Bi, z.H});
  std::vector<Point> right, left;
  double top = 0;
  for (const Band& band : bands) {
    for (const double depth : {top, band.bottom}) {
      right.push_back({(W + band.width) / 2, depth});
      left.push_back({(W - band.width) / 2, depth});
    }
    top = band.bottom;
  }
  std::vector<Point> outline{left.front()};
  outline.insert(outline.end(), right.begin(), right.end());
  outline.insert(outline.end(), left.rbegin(), left.rend() - 1);
  return outline;
}

void DisegnaSchemaT(Lavagna& lavagna, const FormaT& forma) {
  lavagna.Clear();
  lavagna.SetScale(-2, 0, 28, 10);  // room for a name left of the web
  const DatiSezione schema{.B = forma.alaSuperiore ? 7.0 : 1.0,
                           .b = 1,
                           .Bi = forma.alaInferiore ? 7.0 : 1.0,
                           .H = 7,
                           .s = forma.alaSuperiore ? 1.0 : 0.0,
                           .si = forma.alaInferiore ? 1.0 : 0.0};
  const double left = 4.5 - WidestOf(schema) / 2;
  std::vector<Point> outline = ContornoT(schema);
  for (Point& p : outline) p = {p.x + left, 8 - p.y};
  lavagna.SetWidth(2);
  lavagna.DrawPolygon(outline);
  lavagna.SetWidth(3);
  lavagna.SetFont(8);
  for (int strato = 1; strato <= 8; ++strato) {
    const double y = 7.6 - (strato - 1) * 6.2 / 7;
    lavagna.DrawLine(4.3, y, 4.7, y);
  }
  for (int strato = 1; strato <= 8; ++strato) {
    const double y = 7.6 - (strato - 1) * 6.2 / 7;
    // No name stands on the inner edge of a flange.
    const bool under = forma.alaSuperiore && strato == 2, above = forma.alaInferiore && strato == 7;
    lavagna.DrawText(5.3,
                     under   ? 6.54
                     : above ? 2.46
                             : y,
                     "strato " + NumberText(strato), Anchor::Left);
  }
  lavagna.SetWidth(1);
  SchemaMeasures(lavagna, forma);
}

void DisegnaSezioneT(Lavagna& lavagna, const DatiSezione& z, const RisultatiSezione& risultati,
                     const TensioniAmmissibili& ammesse, bool verificata) {
  const double W = WidestOf(z), asse = risultati.asse;
  const bool upper = z.M > 0;  // the compressed edge
  DisegnoFlessione disegno(lavagna, z.H, W, z.s > 0 || z.si > 0, verificata, [&](double depth) {
    return std::vector<Tratto>{{(W - WidthAt(z, depth)) / 2, (W + WidthAt(z, depth)) / 2}};
  });
  disegno.Tratteggia(upper ? 0 : z.H, asse);

  std::vector<Point> outline = ContornoT(z);
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point &a = outline[i], &b = outline[(i + 1) % outline.size()];
    if (a.y == b.y) disegno.Spigolo(std::min(a.x, b.x), std::max(a.x, b.x), a.y);
  }
  for (Point& p : outline) p = {disegno.X(p.x), disegno.Y(p.y)};
  lavagna.SetColour(kBlack);
  lavagna.SetStroke(Stroke::Solid);
  lavagna.SetWidth(2);
  lavagna.DrawPolygon(outline);
  disegno.AsseNeutro(asse);
  Dimensions(disegno, z);
  disegno.Momento(z.M);

  std::vector<double> profondita, aree;
  std::vector<TensioneDisegnata> tensioni{
      {upper ? 0 : z.H, upper ? risultati.clsSup : risultati.clsInf, true}};
  for (std::size_t i = 0; i < z.strati.size(); ++i) {
    const auto [A, d] = z.strati[i];
    profondita.push_back(A != 0 ? d : 0);
    aree.push_back(A);
    if (A != 0) tensioni.push_back({d, risultati.acciaio[i], false});
  }
  disegno.DiagrammaTensioni(tensioni, asse, ammesse);
  disegno.Armature(profondita, aree, [&](double depth) { return WidthAt(z, depth); });
}

}  // namespace orm
