#include "structures/truss_slab/drawing.h"

#include <algorithm>
#include <string>
#include <vector>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

constexpr Colour kBlack{0, 0, 0}, kGrey{110, 110, 110}, kConcrete{200, 200, 200},
    kSteel{160, 30, 30};
constexpr double kMargin = 3;      // units left and right of the longest bar
constexpr double kLetter = 1.0;    // width of a letter, units
constexpr double kAboveBar = 2.4;  // from a bar up to the top of its label
constexpr double kSlabTop = 27, kSlabBottom = 23.4;
constexpr double kLongStubs = 32.8, kShortStubs = 28.8;
constexpr double kSpanBars = 19.9, kBarStep = 3.7, kSpanLine = 4;

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
  double X(double m) const {
    return kMargin + (m + oltre_) * (kLarghezzaDisegno - 2 * kMargin) / (luce_ + 2 * oltre_);
  }

 private:
  double luce_;
  double oltre_ = 0.2;  // beyond the clear span on each side
};

double Larghezza(const std::string& testo) {
  return static_cast<double>(Characters(testo)) * kLetter;
}

void Centrato(Lavagna& lavagna, double x, double y, const std::string& testo) {
  lavagna.SetColour(kBlack);
  lavagna.DrawText(x - Larghezza(testo) / 2, y, testo);
}

void Rettangolo(Lavagna& lavagna, double x1, double x2, double y1, double y2, bool pieno) {
  lavagna.DrawPolygon({{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}, pieno);
}

// The floor between its supports, its solid zones filled.
void DisegnaSolaio(Lavagna& lavagna, const Figura& figura, const Scala& scala) {
  const double x1 = scala.X(0), x2 = scala.X(figura.luce);
  lavagna.SetColour(kConcrete);
  Rettangolo(lavagna, kMargin, x1, kSlabBottom - 1.2, kSlabTop, true);
  Rettangolo(lavagna, x2, kLarghezzaDisegno - kMargin, kSlabBottom - 1.2, kSlabTop, true);
  Rettangolo(lavagna, x1, scala.X(figura.zonaPiena), kSlabBottom, kSlabTop, true);
  Rettangolo(lavagna, scala.X(figura.luce - figura.zonaPiena), x2, kSlabBottom, kSlabTop, true);
  lavagna.SetColour(kGrey);
  lavagna.SetWidth(1);
  Rettangolo(lavagna, x1, x2, kSlabBottom, kSlabTop, false);
  lavagna.DrawLine(x1, kSlabTop - 0.8, x2, kSlabTop - 0.8);
  for (const double zona : {figura.zonaPiena, figura.luce - figura.zonaPiena})
    lavagna.DrawLine(scala.X(zona), kSlabBottom, scala.X(zona), kSlabTop);
}

void DisegnaMonconi(Lavagna& lavagna, const BarraDisegnata& sin, const BarraDisegnata& dex,
                    double luce, double y, const Scala& scala) {
  lavagna.SetWidth(3);
  lavagna.SetColour(kSteel);
  if (sin.campata > 0) {
    lavagna.DrawLine(scala.X(-sin.incastro), y, scala.X(sin.campata), y);
    lavagna.DrawLine(scala.X(-sin.incastro), y, scala.X(-sin.incastro), y - 0.8);
  }
  if (dex.campata > 0) {
    lavagna.DrawLine(scala.X(luce - dex.campata), y, scala.X(luce + dex.incastro), y);
    lavagna.DrawLine(scala.X(luce + dex.incastro), y, scala.X(luce + dex.incastro), y - 0.8);
  }
  lavagna.SetColour(kBlack);
  if (sin.campata > 0) lavagna.DrawText(kMargin, y + kAboveBar, sin.etichetta);
  if (dex.campata > 0)
    lavagna.DrawText(kLarghezzaDisegno - kMargin - Larghezza(dex.etichetta), y + kAboveBar,
                     dex.etichetta);
}

void DisegnaCampata(Lavagna& lavagna, const Figura& figura, const Scala& scala) {
  double y = kSpanBars;
  for (const BarraDisegnata& barra : figura.campata) {
    if (barra.campata == 0) continue;
    lavagna.SetWidth(3);
    lavagna.SetColour(kSteel);
    lavagna.DrawLine(scala.X((figura.luce - barra.campata) / 2), y,
                     scala.X((figura.luce + barra.campata) / 2), y);
    Centrato(lavagna, kLarghezzaDisegno / 2, y + kAboveBar, barra.etichetta);
    y -= kBarStep;
  }
}

void DisegnaQuota(Lavagna& lavagna, const Figura& figura, const Scala& scala) {
  const double x1 = scala.X(0), x2 = scala.X(figura.luce);
  lavagna.SetColour(kGrey);
  lavagna.SetWidth(1);
  lavagna.DrawLine(x1, kSpanLine, x2, kSpanLine);
  for (const double x : {x1, x2}) lavagna.DrawLine(x, kSpanLine - 0.6, x, kSpanLine + 0.6);
  Centrato(lavagna, kLarghezzaDisegno / 2, kSpanLine + kAboveBar, figura.quota);
  lavagna.DrawText(x1, kSpanLine - 0.7, figura.quotaZona);
  lavagna.DrawText(x2 - Larghezza(figura.quotaZona), kSpanLine - 0.7, figura.quotaZona);
}

void Disegna(Lavagna& lavagna, const Figura& figura) {
  const Scala scala(figura);
  lavagna.Clear();
  lavagna.SetFont(9, true);
  lavagna.DrawText(kMargin, kAltezzaDisegno - 0.3, figura.titolo);
  lavagna.SetFont(9);
  DisegnaSolaio(lavagna, figura, scala);
  DisegnaMonconi(lavagna, figura.lungoSin, figura.lungoDex, figura.luce, kLongStubs, scala);
  DisegnaMonconi(lavagna, figura.cortoSin, figura.cortoDex, figura.luce, kShortStubs, scala);
  DisegnaCampata(lavagna, figura, scala);
  DisegnaQuota(lavagna, figura, scala);
}

std::string Etichetta(const char* nome, double diametro, double lunghezza) {
  return std::string(nome) + "  Ø " + FormatPattern(diametro, "###0") +
         "  L = " + FormatPattern(lunghezza, "###0.00");
}

BarraDisegnata DiMoncone(const char* nome, const Moncone& moncone) {
  return {moncone.incastro, moncone.campata,
          Etichetta(nome, moncone.diametro, moncone.Lunghezza())};
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
                 {0, 4.2, kTraliccio}},
                "Luce netta",
                ""};
  Disegna(lavagna, figura);
  Centrato(lavagna, kLarghezzaDisegno / 2, kLongStubs + kAboveBar - 1.6, "di cantiere");
}

void DisegnaArmatureSolaio(Lavagna& lavagna, const DatiSolaioT& dati,
                           const RisultatiSolaioT& risultati) {
  const Figura figura{
      "DISEGNO ARMATURE",
      dati.luce,
      risultati.zonaPiena,
      DiMoncone("Moncone lungo SIN", risultati.sinistra.lungo),
      DiMoncone("Moncone lungo DEX", risultati.destra.lungo),
      DiMoncone("Moncone corto SIN", risultati.sinistra.corto),
      DiMoncone("Moncone corto DEX", risultati.destra.corto),
      {DiCampata("Integrativo n° 1", risultati.campata[1]),
       DiCampata("Integrativo n° 2", risultati.campata[2]),
       DiCampata("Aggiuntivo", risultati.campata[0]), BarraDisegnata{0, dati.luce, kTraliccio}},
      "(Luce netta = " + FormatPattern(dati.luce, "###0.00") + " ml)",
      "Zona piena " + FormatPattern(risultati.zonaPiena * 100, "##0.0") + " cm"};
  Disegna(lavagna, figura);
}

}  // namespace orm
