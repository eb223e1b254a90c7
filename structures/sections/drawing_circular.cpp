#include "structures/sections/drawing_circular.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

#include "structures/sections/picture_pens.h"

namespace orm {
namespace {

double HalfChord(double diameter, double fromCentre) {
  return std::sqrt(std::fmax(0.0, diameter * diameter / 4 - fromCentre * fromCentre));
}

// A circle of the schematic, open on the left where its name stands.
void OpenCircle(Lavagna& lavagna, double radius, double degrees, const char* name) {
  lavagna.DrawArc(5, 5, radius, -180 + degrees, 180 - degrees);
  lavagna.DrawText(5 - radius - 0.28, 5.25, name);
}

struct Anello {
  double area, diametro, sopra, sotto;
  const std::vector<BarGroup>& ferri;
};
struct Gruppo {
  double area, d, tensione;
};

// The bars of a ring, evenly from its top on; groups of different diameters mix evenly too.
void DrawBars(Lavagna& lavagna, const Point& centre, double radius, double Sc,
              const std::vector<BarGroup>& groups) {
  constexpr double kLeast = 0.07;  // units: a bar that is seen, unless it would touch the next one
  struct Bar {
    double order;
    int diameter;
  };
  std::vector<Bar> bars;
  for (const auto& [count, diameter] : groups)
    for (int i = 0; i < count; ++i) bars.push_back({(i + 0.5) / count, diameter});
  std::stable_sort(bars.begin(), bars.end(),
                   [](const Bar& a, const Bar& b) { return a.order < b.order; });
  const double apart = 2 * std::numbers::pi * radius / static_cast<double>(bars.size());
  const double least = std::min(kLeast, apart / 5);
  lavagna.SetColour(kBlack);
  lavagna.SetStroke(Stroke::Solid);
  lavagna.SetWidth(1);
  for (std::size_t i = 0; i < bars.size(); ++i) {
    const double angle =
        2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(bars.size());
    lavagna.DrawDisc(centre.x + radius * std::sin(angle), centre.y + radius * std::cos(angle),
                     std::max(least, bars[i].diameter / 20.0 / Sc));
  }
}

// The diameters, the wall, and the covers of the outmost bars.
void Dimensions(DisegnoFlessione& disegno, const DatiCircolare& z,
                const std::vector<double>& profondita) {
  const double D = z.D;
  const auto [first, last] = std::minmax_element(profondita.begin(), profondita.end());
  std::vector<QuotaSezione> covers, wall;
  if (*first > 0 && *first <= D / 2) covers.push_back({0, *first, "c"});
  if (*last<D&& * last> D / 2) covers.push_back({*last, D, "c"});
  if (z.Di > 0) wall.push_back({0, (D - z.Di) / 2, "s"});
  disegno.QuoteVerticali({0, D, "D"}, covers, wall);
  if (z.Di > 0) disegno.QuotaLarghezza({(D - z.Di) / 2, (D + z.Di) / 2, "Di"}, D);
}

}  // namespace

void DisegnaSchemaC(Lavagna& lavagna, bool anulare) {
  lavagna.Clear();
  lavagna.SetWidth(2);
  lavagna.SetFont(8);
  lavagna.SetColour(kBlue);
  lavagna.DrawArc(5, 5, 4, -176, 176);
  lavagna.DrawText(2.05, 5.8, "Re", Anchor::Centre);
  lavagna.DrawText(11, 8, "Re   raggio esterno sezione");
  if (anulare) {
    OpenCircle(lavagna, 1.5, 14, "Ri");
    lavagna.DrawText(11, 7, "Ri   raggio interno sezione");
  }
  lavagna.SetWidth(1);
  lavagna.DrawLine(1.1, 5.8, 1.5, 5.8);
  lavagna.SetColour(kRed);
  lavagna.SetStroke(Stroke::Dashed);
  lavagna.SetWidth(2);
  OpenCircle(lavagna, 3.5, 6, "R1");
  OpenCircle(lavagna, 2.5, 8, "R2");
  lavagna.DrawText(11, 6, "R1   raggio armatura su circonferenza 1");
  lavagna.DrawText(11, 5, "R2   raggio armatura su circonferenza 2");
  lavagna.SetColour(kBlack);
  lavagna.DrawText(11, 4, "Armatura concentrata:");
  lavagna.DrawText(11, 3, "sull'asse verticale della sezione");
}

void DisegnaSezioneC(Lavagna& lavagna, const DatiCircolare& z, const RisultatiCircolare& risultati,
                     const FerriAnelli& ferri, const TensioniAmmissibili& ammesse,
                     bool verificata) {
  const double D = z.D, Di = z.Di, asse = risultati.asse;
  const bool upper = z.M > 0;  // the compressed edge
  DisegnoFlessione disegno(lavagna, D, D, Di > 0, verificata, [&](double depth) {
    const double edge = HalfChord(D, depth - D / 2), hole = HalfChord(Di, depth - D / 2);
    if (hole == 0) return std::vector<Tratto>{{D / 2 - edge, D / 2 + edge}};
    return std::vector<Tratto>{{D / 2 - edge, D / 2 - hole}, {D / 2 + hole, D / 2 + edge}};
  });
  disegno.Tratteggia(upper ? 0 : D, asse);

  const double cx = disegno.X(D / 2), cy = disegno.Y(D / 2), Sc = disegno.Scala();
  lavagna.SetColour(kBlack);
  lavagna.SetStroke(Stroke::Solid);
  lavagna.SetWidth(2);
  lavagna.DrawArc(cx, cy, D / 2 / Sc);
  if (Di > 0) lavagna.DrawArc(cx, cy, Di / 2 / Sc);
  const auto& acciaio = risultati.acciaio;
  const Anello anelli[] = {{z.Ad1, z.Dd1, acciaio[Sopra1], acciaio[Sotto1], ferri[0]},
                           {z.Ad2, z.Dd2, acciaio[Sopra2], acciaio[Sotto2], ferri[1]}};
  for (const Anello& anello : anelli)
    if (anello.area != 0) DrawBars(lavagna, {cx, cy}, anello.diametro / 2 / Sc, Sc, anello.ferri);
  disegno.AsseNeutro(asse);

  std::vector<TensioneDisegnata> tensioni{
      {upper ? 0 : D, upper ? risultati.clsSup : risultati.clsInf, true}};
  std::vector<double> profondita, aree, usate;
  for (const Anello& anello : anelli) {
    // A ring is told at its upper point.
    profondita.push_back(D / 2 - anello.diametro / 2);
    aree.push_back(anello.area);
    if (anello.area == 0) continue;
    for (const auto& [d, tensione] : {std::pair{D / 2 - anello.diametro / 2, anello.sopra},
                                      std::pair{D / 2 + anello.diametro / 2, anello.sotto}}) {
      tensioni.push_back({d, tensione, false});
      usate.push_back(d);
    }
  }
  // Under a negative moment the results of the two groups have changed places.
  const Gruppo gruppi[] = {{z.Ac1, z.d1, acciaio[upper ? Gruppo1 : Gruppo2]},
                           {z.Ac2, z.d2, acciaio[upper ? Gruppo2 : Gruppo1]}};
  for (const auto& [area, d, tensione] : gruppi) {
    profondita.push_back(d);
    aree.push_back(area);
    if (area == 0) continue;
    tensioni.push_back({d, tensione, false});
    usate.push_back(d);
  }
  Dimensions(disegno, z, usate);
  disegno.Momento(z.M);
  const double ring1 = profondita[0], ring2 = profondita[1];
  disegno.DiagrammaTensioni(tensioni, asse, ammesse);
  disegno.Armature(profondita, aree, [=](double depth) {
    return depth == ring1 || depth == ring2 ? 0 : 2 * HalfChord(D, depth - D / 2);
  });
}

}  // namespace orm
