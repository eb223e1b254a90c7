#include "structures/truss_slab/drawing.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "runtime/numbers.h"
#include "structures/dimension_lines.h"

namespace orm {
namespace {

using Anchor = DrawOperation::Anchor;

constexpr Colour kBlack{0, 0, 0}, kGrey{110, 110, 110}, kConcrete{200, 200, 200},
    kSteel{160, 30, 30};
constexpr double kMargin = 3;       // units left and right of the longest bar
constexpr double kBeyondBar = 0.4;  // of a support, beyond that bar
constexpr double kAboveBar = 0.45;  // from a bar up to its label
constexpr double kSlabTop = 21, kSlabBottom = 17.8;
constexpr double kLongStubs = 25, kShortStubs = 22.2;
constexpr double kInBend = 0.8;  // from a stub's bend to its name
constexpr double kSpanBars = 14.2, kBarStep = 2.5, kSpanLine = 3.4;
constexpr double kTick = 0.5;
constexpr double kBearing = 0.1;  // m of a joist on each support, as it is customary

// What is drawn: lengths in m, the labels as they stand. A bar of length 0 is not there.
struct BarraDisegnata {
  double incastro = 0, campata = 0;  // of a stub; a span bar has its length in `campata`
  std::string etichetta;
};
struct Figura {
  std::string titolo;
  double luce = 0, zonaPiena = 0;
  BarraDisegnata lungoSin, lungoDex, cortoSin, cortoDex;
  std::vector<BarraDisegnata> campata;
  std::string quota, quotaZona;
};

// Metres from the left face of the clear span to units of the panel.
class Scala {
 public:
  explicit Scala(const Figura& figura) : luce_(figura.luce) {
    for (const BarraDisegnata* m :
         {&figura.lungoSin, &figura.lungoDex, &figura.cortoSin, &figura.cortoDex})
      oltre_ = std::max(oltre_, m->incastro);
    for (const BarraDisegnata& b : figura.campata)
      oltre_ = std::max(oltre_, (b.campata - luce_) / 2);
  }
  double X(double m) const { return kMargin + (m + oltre_) / Unita(); }
  double Unita() const { return (luce_ + 2 * oltre_) / (kLarghezzaDisegno - 2 * kMargin); }  // m

 private:
  double luce_;
  double oltre_ = 0.2;  // beyond the clear span on each side
};

void Rettangolo(Lavagna& lavagna, double x1, double x2, double y1, double y2, bool pieno) {
  lavagna.DrawPolygon({{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}, pieno);
}

// The floor between its supports, its solid zones filled.
void DisegnaSolaio(Lavagna& lavagna, const Figura& figura, const Scala& scala) {
  const double x1 = scala.X(0), x2 = scala.X(figura.luce);
  lavagna.SetColour(kConcrete);
  const double fuori = kMargin - kBeyondBar;
  Rettangolo(lavagna, fuori, x1, kSlabBottom - 0.9, kSlabTop, true);
  Rettangolo(lavagna, x2, kLarghezzaDisegno - fuori, kSlabBottom - 0.9, kSlabTop, true);
  Rettangolo(lavagna, x1, scala.X(figura.zonaPiena), kSlabBottom, kSlabTop, true);
  Rettangolo(lavagna, scala.X(figura.luce - figura.zonaPiena), x2, kSlabBottom, kSlabTop, true);
  lavagna.SetColour(kGrey);
  lavagna.SetWidth(1);
  Rettangolo(lavagna, x1, x2, kSlabBottom, kSlabTop, false);
  lavagna.DrawLine(x1, kSlabTop - 0.8, x2, kSlabTop - 0.8);
  for (const double zona : {figura.zonaPiena, figura.luce - figura.zonaPiena})
    lavagna.DrawLine(scala.X(zona), kSlabBottom, scala.X(zona), kSlabTop);
}

void DisegnaFerro(Lavagna& lavagna, double x1, double x2, double y) {
  lavagna.SetWidth(3);
  lavagna.SetColour(kSteel);
  lavagna.DrawLine(x1, y, x2, y);
}

// From the bend in the support to the end in the span, `verso` outward. The bar comes after its
// name, whose rim would nick it.
void DisegnaMoncone(Lavagna& lavagna, const BarraDisegnata& moncone, double faccia, int verso,
                    double y, double xNome, const Scala& scala) {
  if (moncone.campata == 0) return;
  const double piega = scala.X(faccia + verso * moncone.incastro);
  const double above = y + kAboveBar + lavagna.LineHeight() / 2;
  lavagna.SetColour(kBlack);
  lavagna.DrawText(xNome, above, moncone.etichetta, verso < 0 ? Anchor::Left : Anchor::Right);
  DisegnaFerro(lavagna, piega, scala.X(faccia - verso * moncone.campata), y);
  lavagna.DrawLine(piega, y, piega, y - 0.8);
}

// The names of both begin below each other within the bends, as that of the long one comes down
// beside the name of the short one.
void DisegnaMonconi(Lavagna& lavagna, const BarraDisegnata& lungo, const BarraDisegnata& corto,
                    double faccia, int verso, const Scala& scala) {
  const double incastro = corto.campata == 0   ? lungo.incastro
                          : lungo.campata == 0 ? corto.incastro
                                               : std::min(lungo.incastro, corto.incastro);
  const double x = scala.X(faccia + verso * incastro) - verso * kInBend;
  DisegnaMoncone(lavagna, lungo, faccia, verso, kLongStubs, x, scala);
  DisegnaMoncone(lavagna, corto, faccia, verso, kShortStubs, x, scala);
}

// The bars come after all names, whose rims would nick the bar above.
void DisegnaCampata(Lavagna& lavagna, const Figura& figura, const Scala& scala) {
  std::vector<BarraDisegnata> barre;
  std::ranges::copy_if(figura.campata, std::back_inserter(barre),
                       [](const BarraDisegnata& barra) { return barra.campata != 0; });
  const auto quota = [](std::size_t i) { return kSpanBars - static_cast<double>(i) * kBarStep; };
  lavagna.SetColour(kBlack);
  for (std::size_t i = 0; i < barre.size(); ++i)
    lavagna.DrawText(kLarghezzaDisegno / 2, quota(i) + kAboveBar, barre[i].etichetta,
                     Anchor::Above);
  for (std::size_t i = 0; i < barre.size(); ++i)
    DisegnaFerro(lavagna, scala.X((figura.luce - barre[i].campata) / 2),
                 scala.X((figura.luce + barre[i].campata) / 2), quota(i));
}

// The faces of the supports, so that one sees which bars lie in them: through the bars in the span
// and up to the first stub, above which the names begin.
void DisegnaQuote(Lavagna& lavagna, const Figura& figura, const Scala& scala) {
  const Quote quote(lavagna, kTick);
  const double x1 = scala.X(0), x2 = scala.X(figura.luce);
  for (const auto& [x, corto] : {std::pair{x1, &figura.cortoSin}, std::pair{x2, &figura.cortoDex}})
    quote.Richiamo({x, kSlabTop},
                   {x, (corto->campata == 0 ? kLongStubs : kShortStubs) - kTick / 2});
  for (const double x : {x1, x2}) quote.Richiamo({x, kSlabBottom - 0.9}, {x, kSpanLine});
  quote.Riga({x1, kSpanLine}, {x2, kSpanLine});
  quote.Nome(kLarghezzaDisegno / 2, kSpanLine + kAboveBar, figura.quota, Anchor::Above);
  if (figura.zonaPiena == 0 || figura.quotaZona.empty()) return;
  const double zona = scala.X(figura.zonaPiena) - x1;
  for (const auto& [da, a] : {std::pair{x1, x1 + zona}, std::pair{x2 - zona, x2}})
    quote.Riga({da, kSpanLine}, {a, kSpanLine});
  const double below = kSpanLine - kTick - 0.3 - lavagna.LineHeight() / 2;
  quote.Nome(x1, below, figura.quotaZona, Anchor::Left);
  quote.Nome(x2, below, figura.quotaZona, Anchor::Right);
}

void Disegna(Lavagna& lavagna, const Figura& figura, const Scala& scala) {
  lavagna.SetFont(9, true);
  lavagna.DrawText(kMargin, kAltezzaDisegno - 0.3, figura.titolo);
  lavagna.SetFont(8);
  lavagna.SetHalo(true);
  DisegnaSolaio(lavagna, figura, scala);
  DisegnaQuote(lavagna, figura, scala);
  DisegnaMonconi(lavagna, figura.lungoSin, figura.cortoSin, 0, -1, scala);
  DisegnaMonconi(lavagna, figura.lungoDex, figura.cortoDex, figura.luce, 1, scala);
  DisegnaCampata(lavagna, figura, scala);
}

std::string Etichetta(const char* nome, double diametro, double lunghezza) {
  return std::string(nome) + "  Ø " + FormatPattern(diametro, "###0") +
         "  L = " + FormatPattern(lunghezza, "###0.00") + " ml";
}

BarraDisegnata DiMoncone(const char* nome, const Moncone& moncone) {
  return {moncone.incastro, moncone.campata,
          Etichetta(nome, moncone.diametro, moncone.Lunghezza()) + " (inc. " +
              FormatPattern(moncone.incastro * 100, "##0") + " + camp. " +
              FormatPattern(moncone.campata * 100, "##0") + " cm)"};
}

BarraDisegnata DiCampata(const char* nome, const Barra& barra) {
  return {0, barra.lunghezza, Etichetta(nome, barra.diametro, barra.lunghezza)};
}

constexpr const char* kTraliccio = "Ferri inferiori Traliccio   2 Ø 5";

}  // namespace

void DisegnaSchemaSolaio(Lavagna& lavagna) {
  Figura figura{"SCHEMA DI INPUT DATI",
                4,
                0.2,
                {0.3, 1.1, "Moncone lungo SIN"},
                {0.3, 1.1, "Moncone lungo DEX"},
                {0.3, 0.7, "Moncone corto SIN"},
                {0.3, 0.7, "Moncone corto DEX"},
                {{0, 3.3, "Integrativo n° 1"},
                 {0, 2.4, "Integrativo n° 2"},
                 {0, 4.4, "Aggiuntivo"},
                 {0, 4 + 2 * kBearing, kTraliccio}},
                "Luce netta",
                ""};
  const Scala scala(figura);
  lavagna.Clear();
  Disegna(lavagna, figura, scala);
  // The stubs are laid on the site, the other bars come with the joist.
  const double x = kLarghezzaDisegno / 2, y = (kLongStubs + kShortStubs) / 2;
  const double half = lavagna.TextWidth("di cantiere") / 2;
  const Quote quote(lavagna, kTick);
  for (const int side : {-1, 1}) {
    const double faccia = side < 0 ? 0 : figura.luce;
    for (const auto& [m, row] : {std::pair{figura.lungoSin.campata, kLongStubs},
                                 std::pair{figura.cortoSin.campata, kShortStubs}})
      quote.Freccia(x + side * half, y, scala.X(faccia - side * m) + side * 0.6, row);
  }
  quote.Centrato(x, y, "di cantiere");
}

void DisegnaArmatureSolaio(Lavagna& lavagna, const DatiSolaioT& dati,
                           const RisultatiSolaioT& risultati) {
  const Figura figura{"DISEGNO ARMATURE",
                      dati.luce,
                      risultati.zonaPiena,
                      DiMoncone("Moncone lungo SIN", risultati.sinistra.lungo),
                      DiMoncone("Moncone lungo DEX", risultati.destra.lungo),
                      DiMoncone("Moncone corto SIN", risultati.sinistra.corto),
                      DiMoncone("Moncone corto DEX", risultati.destra.corto),
                      {DiCampata("Integrativo n° 1", risultati.campata[1]),
                       DiCampata("Integrativo n° 2", risultati.campata[2]),
                       DiCampata("Aggiuntivo", risultati.campata[0]),
                       BarraDisegnata{0, dati.luce + 2 * kBearing, kTraliccio}},
                      "(Luce netta = " + FormatPattern(dati.luce, "###0.00") + " ml)",
                      "Zona piena " + FormatPattern(risultati.zonaPiena * 100, "##0.0") + " cm"};
  const Scala scala(figura);
  lavagna.Clear();
  lavagna.BeginView({scala.Unita() * 100, {0, 0}});
  lavagna.SetFont(8);
  lavagna.DrawText(kLarghezzaDisegno - kMargin, kAltezzaDisegno - 1.2,
                   "lunghezze in scala, altezze no", Anchor::Right);
  Disegna(lavagna, figura, scala);
}

}  // namespace orm
