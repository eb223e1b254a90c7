#include "structures/sections/drawing_circular.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace orm {
namespace {

using Stroke = DrawOperation::Stroke;

constexpr Colour kBlack{0, 0, 0}, kBlue{0, 0, 255}, kRed{255, 0, 0};

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
};
struct Gruppo {
  double area, d, tensione;
};

}  // namespace

void DisegnaSchemaC(Lavagna& lavagna, bool anulare) {
  lavagna.Clear();
  lavagna.SetWidth(2);
  lavagna.SetFont(10);
  lavagna.SetColour(kBlue);
  lavagna.DrawArc(5, 5, 4, -176, 176);
  lavagna.DrawText(1.9, 5.85, "Re");
  lavagna.DrawText(11, 8, "Re   raggio esterno sezione");
  if (anulare) {
    OpenCircle(lavagna, 1.5, 14, "Ri");
    lavagna.DrawText(11, 7, "Ri   raggio interno sezione");
  }
  lavagna.SetWidth(1);
  lavagna.DrawLine(1.1, 5.6, 1.85, 5.6);
  lavagna.SetColour(kRed);
  lavagna.SetStroke(Stroke::Dashed);
  lavagna.SetWidth(2);
  OpenCircle(lavagna, 3.5, 6, "R1");
  OpenCircle(lavagna, 2.5, 8, "R2");
  lavagna.DrawText(11, 6, "R1   raggio armatura su circonferenza 1");
  lavagna.DrawText(11, 5, "R2   raggio armatura su circonferenza 2");
  lavagna.SetColour(kBlack);
  lavagna.DrawText(11, 4, "Armatura concentrata: sull'asse verticale della sezione");
}

void DisegnaSezioneC(Lavagna& lavagna, const DatiCircolare& z, const RisultatiCircolare& risultati,
                     const TensioniAmmissibili& ammesse, bool verificata) {
  const double D = z.D, Di = z.Di, asse = risultati.asse;
  const bool upper = z.M > 0;  // the compressed edge
  DisegnoFlessione disegno(lavagna, D, D, verificata);
  disegno.Tratteggia(upper ? 0 : D, asse, [&](double depth) {
    const double edge = HalfChord(D, depth - D / 2), hole = HalfChord(Di, depth - D / 2);
    if (hole == 0) return std::vector<Tratto>{{D / 2 - edge, D / 2 + edge}};
    return std::vector<Tratto>{{D / 2 - edge, D / 2 - hole}, {D / 2 + hole, D / 2 + edge}};
  });

  const double cx = disegno.X(D / 2), cy = disegno.Y(D / 2), Sc = disegno.Scala();
  lavagna.SetColour(kBlack);
  lavagna.SetStroke(Stroke::Solid);
  lavagna.SetWidth(2);
  lavagna.DrawArc(cx, cy, D / 2 / Sc);
  if (Di > 0) lavagna.DrawArc(cx, cy, Di / 2 / Sc);
  lavagna.SetStroke(Stroke::Dotted);
  lavagna.SetWidth(3);
  const auto& acciaio = risultati.acciaio;
  const Anello anelli[] = {{z.Ad1, z.Dd1, acciaio[Sopra1], acciaio[Sotto1]},
                           {z.Ad2, z.Dd2, acciaio[Sopra2], acciaio[Sotto2]}};
  for (const Anello& anello : anelli)
    if (anello.area != 0) lavagna.DrawArc(cx, cy, anello.diametro / 2 / Sc);
  disegno.AsseNeutro(asse);

  std::vector<TensioneDisegnata> tensioni{
      {upper ? 0 : D, upper ? risultati.clsSup : risultati.clsInf, true}};
  std::vector<double> profondita, aree;
  for (const auto& [area, diametro, sopra, sotto] : anelli) {
    // A ring is told at its upper point.
    profondita.push_back(D / 2 - diametro / 2);
    aree.push_back(area);
    if (area == 0) continue;
    tensioni.push_back({D / 2 - diametro / 2, sopra, false});
    tensioni.push_back({D / 2 + diametro / 2, sotto, false});
  }
  // Under a negative moment the results of the two groups have changed places.
  const Gruppo gruppi[] = {{z.Ac1, z.d1, acciaio[upper ? Gruppo1 : Gruppo2]},
                           {z.Ac2, z.d2, acciaio[upper ? Gruppo2 : Gruppo1]}};
  for (const auto& [area, d, tensione] : gruppi) {
    profondita.push_back(d);
    aree.push_back(area);
    if (area != 0) tensioni.push_back({d, tensione, false});
  }
  const double ring1 = profondita[0], ring2 = profondita[1];
  disegno.Armature(profondita, aree, [=](double depth) {
    return depth == ring1 || depth == ring2 ? 0 : 2 * HalfChord(D, depth - D / 2);
  });
  disegno.DiagrammaTensioni(tensioni, asse, ammesse);
}

}  // namespace orm
