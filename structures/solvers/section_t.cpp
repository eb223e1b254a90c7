#include "structures/solvers/section_t.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <utility>

#include "structures/solvers/arrays.h"
#include "structures/solvers/working_stress.h"

namespace orm {
namespace {

double Cube(double v) { return v * v * v; }

// Where the line at depth x falls. The second range begins a hair behind the first: what lies
// between them goes with the third.
enum class Range { UpperFlange, Web, LowerFlange };
Range RangeOf(double x, const DatiSezione& z) {
  if (x >= 0 && x <= z.s) return Range::UpperFlange;
  if (x >= z.s + 1e-9 && x <= z.H - z.si) return Range::Web;
  return Range::LowerFlange;
}

bool AllFinite(const DatiSezione& z) {
  const double measures[] = {z.B, z.b, z.Bi, z.H, z.s, z.si, z.M};
  return std::all_of(std::begin(measures), std::end(measures),
                     [](double v) { return std::isfinite(v); }) &&
         std::all_of(z.strati.begin(), z.strati.end(),
                     [](const StratoT& l) { return std::isfinite(l.A) && std::isfinite(l.d); });
}

EsitoT Check(const DatiSezione& z) {
  const auto any = [&](auto&& wrong) {
    return std::any_of(z.strati.begin(), z.strati.end(), wrong);
  };
  if (!AllFinite(z)) return EsitoT::GeometriaErrata;
  if (z.H <= 0 || z.B <= 0 || z.Bi <= 0 || z.b <= 0 || z.s < 0 || z.si < 0 || z.s + z.si >= z.H ||
      any([](const StratoT& l) { return l.d < 0; }))
    return EsitoT::GeometriaErrata;
  if (any([](const StratoT& l) { return l.A < 0; })) return EsitoT::ArmaturaNegativa;
  if (!any([](const StratoT& l) { return l.A > 0; })) return EsitoT::SenzaArmatura;
  if (any([&](const StratoT& l) { return l.d > z.H - kCopriferroMinimo; }))
    return EsitoT::CopriferroErrato;
  if (any([](const StratoT& l) { return l.d != 0 && l.d < kCopriferroMinimo; }))
    return EsitoT::CopriferroErrato;
  return EsitoT::Fatto;
}

void TurnOver(DatiSezione& z) {
  std::swap(z.B, z.Bi);
  std::swap(z.s, z.si);
  for (StratoT& strato : z.strati)
    if (strato.d != 0) strato.d = z.H - strato.d;
  z.M = -z.M;
}

}  // namespace

double MomentoStaticoT(double x, const DatiSezione& z) {
  const Range range = RangeOf(x, z);
  double C = 0;
  if (range == Range::UpperFlange) {
    C = z.B * Square(x) / 2;
  } else {
    C = z.b * Square(x) / 2 + (z.B - z.b) * z.s * (x - z.s / 2);
    if (range == Range::LowerFlange) C += (z.Bi - z.b) * Square(x - (z.H - z.si)) / 2;
  }
  double steel = 0;
  for (const StratoT& strato : z.strati) steel -= kModuloN * strato.A * (strato.d - x);
  return C + steel;
}

double MomentoInerziaT(double x, const DatiSezione& z) {
  const Range range = RangeOf(x, z);
  double C = 0;
  if (range == Range::UpperFlange) {
    C = z.B * Cube(x) / 3;
  } else {
    C = z.b * Cube(x) / 3 + (z.B - z.b) * Cube(z.s) / 12 + (z.B - z.b) * z.s * Square(x - z.s / 2);
    if (range == Range::LowerFlange) C += (z.Bi - z.b) * Cube(x - (z.H - z.si)) / 3;
  }
  for (const StratoT& strato : z.strati) C += kModuloN * strato.A * Square(strato.d - x);
  return C;
}

void VerificaSezioneT(const DatiSezione& dati, RisultatiSezione& risultati) {
  DatiSezione z = dati;
  for (StratoT& strato : z.strati)
    if (strato.A == 0) strato.d = 0;
  risultati.esito = Check(z);
  if (risultati.esito != EsitoT::Fatto) return;
  if (z.M == 0) {
    risultati = {};
    return;
  }
  const bool turned = z.M < 0;
  if (turned) TurnOver(z);
  const double x = Bisezione([&z](double xm) { return MomentoStaticoT(xm, z); }, 0.0, z.H, 0.001);
  const double I = MomentoInerziaT(x, z);
  const double sc = -z.M * x / I;
  std::array<double, 8> steel{};
  double sum = x + I + sc;
  for (std::size_t i = 0; i < steel.size(); ++i) {
    if (z.strati[i].A != 0) steel[i] = (z.strati[i].d - x) * (z.M * kModuloN) / I;
    sum += steel[i];
  }
  // Measures beyond all bounds, whose products leave the range of numbers.
  if (!std::isfinite(sum)) {
    risultati.esito = EsitoT::GeometriaErrata;
    return;
  }
  risultati.acciaio = steel;
  risultati.x = x;
  risultati.inerzia = I;
  int position = 0;
  MassimoMinimoVettore(steel, risultati.massimo, risultati.minimo, position, position);
  risultati.asse = turned ? z.H - x : x;
  risultati.clsSup = turned ? 0 : sc;
  risultati.clsInf = turned ? sc : 0;
}

}  // namespace orm
