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

double Square(double v) { return v * v; }
double Cube(double v) { return v * v * v; }

// Where the line at depth x falls. The second range begins a hair behind the first: what lies
// between them goes with the third.
enum class Range { UpperFlange, Web, LowerFlange };
Range RangeOf(double x, const SezioneT& z) {
  if (x >= 0 && x <= z.s) return Range::UpperFlange;
  if (x >= z.s + 1e-9 && x <= z.H - z.si) return Range::Web;
  return Range::LowerFlange;
}

bool AllFinite(const SezioneT& z, double M) {
  const double measures[] = {z.B, z.b, z.Bi, z.H, z.s, z.si, M};
  return std::all_of(std::begin(measures), std::end(measures),
                     [](double v) { return std::isfinite(v); }) &&
         std::all_of(z.strati.begin(), z.strati.end(),
                     [](const StratoT& l) { return std::isfinite(l.A) && std::isfinite(l.d); });
}

EsitoT Check(const SezioneT& z, double M) {
  const auto any = [&](auto&& wrong) {
    return std::any_of(z.strati.begin(), z.strati.end(), wrong);
  };
  if (!AllFinite(z, M)) return EsitoT::GeometriaErrata;
  if (z.H <= 0 || z.B <= 0 || z.Bi <= 0 || z.b <= 0 || z.s < 0 || z.si < 0 || z.s + z.si >= z.H ||
      any([](const StratoT& l) { return l.d < 0; }))
    return EsitoT::GeometriaErrata;
  if (any([](const StratoT& l) { return l.A < 0; })) return EsitoT::ArmaturaNegativa;
  if (!any([](const StratoT& l) { return l.A > 0; })) return EsitoT::SenzaArmatura;
  if (any([&](const StratoT& l) { return l.d > z.H - CopriferroMinimo; }))
    return EsitoT::CopriferroErrato;
  if (any([](const StratoT& l) { return l.d != 0 && l.d < CopriferroMinimo; }))
    return EsitoT::CopriferroErrato;
  return EsitoT::Fatto;
}

void TurnOver(SezioneT& z) {
  std::swap(z.B, z.Bi);
  std::swap(z.s, z.si);
  for (StratoT& strato : z.strati)
    if (strato.d != 0) strato.d = z.H - strato.d;
}

}  // namespace

SezioneT LeggiSezioneT(const DatiSezione& dati) {
  SezioneT z{dati[1], dati[2], dati[3], dati[4], dati[5], dati[6], {}};
  for (std::size_t i = 0; i < z.strati.size(); ++i)
    if (const double A = dati[7 + 2 * i]; A != 0) z.strati[i] = {A, dati[8 + 2 * i]};
  return z;
}

double MomentoStaticoT(double x, const SezioneT& z) {
  const Range range = RangeOf(x, z);
  double C = 0;
  if (range == Range::UpperFlange) {
    C = z.B * Square(x) / 2;
  } else {
    C = z.b * Square(x) / 2 + (z.B - z.b) * z.s * (x - z.s / 2);
    if (range == Range::LowerFlange) C += (z.Bi - z.b) * Square(x - (z.H - z.si)) / 2;
  }
  double steel = 0;
  for (const StratoT& strato : z.strati) steel -= ModuloN * strato.A * (strato.d - x);
  return C + steel;
}

double MomentoInerziaT(double x, const SezioneT& z) {
  const Range range = RangeOf(x, z);
  double C = 0;
  if (range == Range::UpperFlange) {
    C = z.B * Cube(x) / 3;
  } else {
    C = z.b * Cube(x) / 3 + (z.B - z.b) * Cube(z.s) / 12 + (z.B - z.b) * z.s * Square(x - z.s / 2);
    if (range == Range::LowerFlange) C += (z.Bi - z.b) * Cube(x - (z.H - z.si)) / 3;
  }
  for (const StratoT& strato : z.strati) C += ModuloN * strato.A * Square(strato.d - x);
  return C;
}

void VerificaSezioneT(const DatiSezione& dati, RisultatiSezione& risultati) {
  SezioneT z = LeggiSezioneT(dati);
  double M = dati[23];
  const EsitoT esito = Check(z, M);
  risultati[0] = static_cast<double>(esito);
  if (esito != EsitoT::Fatto) return;
  if (M == 0) {
    std::fill(risultati.begin() + 1, risultati.end(), 0.0);
    return;
  }
  const bool turned = M < 0;
  if (turned) {
    TurnOver(z);
    M = -M;
  }
  const double x = Bisezione([&z](double xm) { return MomentoStaticoT(xm, z); }, 0.0, z.H, 0.001);
  const double I = MomentoInerziaT(x, z);
  const double sc = -M * x / I;
  std::array<double, 8> steel{};
  double sum = x + I + sc;
  for (std::size_t i = 0; i < steel.size(); ++i) {
    if (z.strati[i].A != 0) steel[i] = (z.strati[i].d - x) * (M * ModuloN) / I;
    sum += steel[i];
  }
  // Measures beyond all bounds, whose products leave the range of numbers.
  if (!std::isfinite(sum)) {
    risultati[0] = static_cast<double>(EsitoT::GeometriaErrata);
    return;
  }
  std::copy(steel.begin(), steel.end(), risultati.begin() + 4);
  int position = 0;
  MassimoMinimoVettore(steel, risultati[12], risultati[13], position, position);
  risultati[1] = turned ? z.H - x : x;
  risultati[2] = turned ? 0 : sc;
  risultati[3] = turned ? sc : 0;
}

}  // namespace orm
