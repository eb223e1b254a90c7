// The curve of a percentage.
#include "utilities/percentage_curve.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "runtime/numbers.h"

namespace orm {
namespace {

constexpr double kSinistra = 50, kSotto = 35, kDestra = 545, kSopra = 245;
constexpr int kPrimaDecade = 6, kUltimaDecade = 11;  // powers of ten, Lire
constexpr int kPunti = 120;
constexpr Colour kAssi{110, 110, 110}, kGriglia{220, 220, 220}, kCurva{0, 70, 160},
    kSegno{190, 30, 30};
constexpr std::array kNomiDecadi = {"1", "10", "100", "1.000", "10.000", "100.000"};

double Ascissa(double importo) {
  const double decadi = std::log10(importo) - kPrimaDecade;
  return kSinistra + (kDestra - kSinistra) * decadi / (kUltimaDecade - kPrimaDecade);
}

double Importo(int punto) {
  return std::pow(
      10, kPrimaDecade + static_cast<double>(kUltimaDecade - kPrimaDecade) * punto / kPunti);
}

// The greatest percentage on the axis: four whole steps above the curve.
double Fondo(const RichiestaPercentuali& richiesta) {
  double massima = 0;
  for (int n = 0; n <= kPunti; ++n)
    massima = std::max(massima, PercentualeDiCurva(Importo(n), richiesta));
  return 4 * std::max(1.0, std::ceil(massima / 4));
}

double Ordinata(double percentuale, double fondo) {
  return kSotto + (kSopra - kSotto) * percentuale / fondo;
}

void DisegnaAssi(Lavagna& lavagna, double fondo) {
  lavagna.SetFont(8);
  for (int n = 0; n <= 4; ++n) {
    const double y = Ordinata(fondo * n / 4, fondo);
    lavagna.SetColour(kGriglia);
    lavagna.DrawLine(kSinistra, y, kDestra, y);
    lavagna.SetColour(kAssi);
    lavagna.DrawText(8, y + 7, FormatPattern(fondo * n / 4, "0") + "%");
  }
  for (int decade = kPrimaDecade; decade <= kUltimaDecade; ++decade) {
    const double x = Ascissa(std::pow(10, decade));
    lavagna.SetColour(kGriglia);
    lavagna.DrawLine(x, kSotto, x, kSopra);
    lavagna.SetColour(kAssi);
    lavagna.DrawText(x - 12, kSotto - 4,
                     kNomiDecadi[static_cast<std::size_t>(decade - kPrimaDecade)]);
  }
  lavagna.DrawText(kSinistra, kSotto - 18, "importo in milioni di Lire");
}

}  // namespace

void DisegnaCurva(Lavagna& lavagna, const RichiestaPercentuali& richiesta, double importoLire) {
  lavagna.Clear();
  const double fondo = Fondo(richiesta);
  DisegnaAssi(lavagna, fondo);
  lavagna.SetColour(kCurva);
  lavagna.SetWidth(2);
  for (int n = 0; n < kPunti; ++n)
    lavagna.DrawLine(
        Ascissa(Importo(n)), Ordinata(PercentualeDiCurva(Importo(n), richiesta), fondo),
        Ascissa(Importo(n + 1)), Ordinata(PercentualeDiCurva(Importo(n + 1), richiesta), fondo));
  if (importoLire < Importo(0) || importoLire > Importo(kPunti)) return;
  lavagna.SetColour(kSegno);
  const double x = Ascissa(importoLire);
  const double y = Ordinata(PercentualeDiCurva(importoLire, richiesta), fondo);
  lavagna.DrawArc(x, y, 4);
  lavagna.SetWidth(1);
  lavagna.SetStroke(DrawOperation::Stroke::Dashed);
  lavagna.DrawLine(x, kSotto, x, y);
  lavagna.DrawLine(kSinistra, y, x, y);
}

}  // namespace orm
