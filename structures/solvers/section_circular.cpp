#include "structures/solvers/section_circular.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>

#include "structures/solvers/arrays.h"
#include "structures/solvers/working_stress.h"

namespace orm {
namespace {

constexpr double kPi = 3.14159265358979;
constexpr double kTenSeconds = kPi / 64800.0;  // of arc

double Square(double v) { return v * v; }

// First and second moment of the segment of half angle u of a circle of diameter Q about its chord.
double SEG(double Q, double u) {
  const double sine = std::sin(u), cosine = std::cos(u);
  return Q * Q * Q * (sine * sine * sine / 12 - cosine * (u - sine * cosine) / 8);
}

double INE(double Q, double u) {
  const double sine = std::sin(u), cosine = std::cos(u);
  return Q * Q * Q * Q *
         (u * (1 + 4 * Square(cosine)) / 64 - (15 - 2 * Square(sine)) * sine * cosine / 192);
}

double StaticSteel(double t, const SezioneCircolare& z) {
  const double c = std::cos(t);
  const double x = z.D / 2 - z.D * c / 2;
  return -ModuloN * z.D * c * (z.Ad1 + z.Ad2) / 2 - ModuloN * z.Ac1 * (z.d1 - x) -
         ModuloN * z.Ac2 * (z.d2 - x);
}

double InertiaSteel(double t, const SezioneCircolare& z) {
  const double c = std::cos(t);
  const double x = z.D / 2 - z.D * c / 2;
  return ModuloN * Square(z.D) * Square(c) * (z.Ad1 + z.Ad2) / 4 +
         ModuloN * (Square(z.Dd1) * z.Ad1 / 8 + Square(z.Dd2) * z.Ad2 / 8) +
         ModuloN * z.Ac1 * Square(z.d1 - x) + ModuloN * z.Ac2 * Square(z.d2 - x);
}

// Half angle on the hole of the chord that has half angle t on the outer circle. Beside the angles
// where the chord touches the hole, k may pass 1 by the last digit.
double HoleAngle(double t, const SezioneCircolare& z) {
  const double k = std::cos(t) * z.D / z.Di;
  return kPi / 2 - std::atan(k / std::sqrt(std::max(0.0, 1 - Square(k))));
}

enum class Range { HoleInTension, HoleCut, HoleCompressed };

class Ranges {
 public:
  explicit Ranges(const SezioneCircolare& z)
      : solid_(z.Di == 0), t0_(solid_ ? 0 : std::atan(std::sqrt(Square(z.D / z.Di) - 1))) {}
  Range Of(double t) const {
    if (solid_ || t <= t0_) return Range::HoleInTension;
    return t < kPi - t0_ ? Range::HoleCut : Range::HoleCompressed;
  }

 private:
  bool solid_;
  double t0_;  // half angle at which the chord touches the hole
};

double MomentoStatico(Range range, double t, const SezioneCircolare& z) {
  switch (range) {
    case Range::HoleCut:
      return MomentoStaticoCorona(t, z);
    case Range::HoleCompressed:
      return MomentoStaticoCoronaOltre(t, z);
    default:
      return MomentoStaticoCerchio(t, z);
  }
}

double MomentoInerzia(Range range, double t, const SezioneCircolare& z) {
  switch (range) {
    case Range::HoleCut:
      return MomentoInerziaCorona(t, z);
    case Range::HoleCompressed:
      return MomentoInerziaCoronaOltre(t, z);
    default:
      return MomentoInerziaCerchio(t, z);
  }
}

// A group within the hole, or nearer than the least cover to its edge, whatever its area.
bool InHoleBand(double d, const SezioneCircolare& z) {
  return z.Di != 0 && d > z.D / 2 - z.Di / 2 - CopriferroMinimo &&
         d < z.D / 2 + z.Di / 2 + CopriferroMinimo;
}

// A ring may lie up to 2 cm of diameter inside the hole: the tolerance is meant that way.
bool RingInHole(double area, double diameter, const SezioneCircolare& z) {
  return area != 0 && z.Di != 0 && diameter < z.Di - CopriferroMinimo;
}

EsitoC Check(const DatiCircolare& dati, const SezioneCircolare& z) {
  if (!std::all_of(dati.begin() + 1, dati.end(), [](double v) { return std::isfinite(v); }))
    return EsitoC::GeometriaErrata;
  if (z.D <= 0 || z.Di < 0 || z.D <= z.Di) return EsitoC::GeometriaErrata;
  const double deepest = z.D - CopriferroMinimo;
  if (z.Dd1 < 0 || z.Dd2 < 0 || z.Dd1 > deepest || z.Dd2 > deepest ||
      (z.Ac1 != 0 && z.d1 < CopriferroMinimo) || (z.Ac2 != 0 && z.d2 < CopriferroMinimo) ||
      z.d1 > deepest || z.d2 > deepest)
    return EsitoC::ArmaturaErrata;
  if (InHoleBand(z.d1, z) || InHoleBand(z.d2, z)) return EsitoC::ArmaturaErrata;
  if (RingInHole(z.Ad1, z.Dd1, z) || RingInHole(z.Ad2, z.Dd2, z)) return EsitoC::ArmaturaErrata;
  if (!(z.Ad1 + z.Ad2 + z.Ac1 + z.Ac2 > 0)) return EsitoC::SenzaArmatura;
  return EsitoC::Fatto;
}

// The circles are their own mirror image: only the groups move, the second one only with the first.
void TurnOver(SezioneCircolare& z) {
  if (z.d1 == 0) return;
  z.d1 = z.D - z.d1;
  if (z.d2 != 0) z.d2 = z.D - z.d2;
}

}  // namespace

double MomentoStaticoCerchio(double t, const SezioneCircolare& z) {
  return SEG(z.D, t) + StaticSteel(t, z);
}

double MomentoStaticoCorona(double t, const SezioneCircolare& z) {
  return SEG(z.D, t) - SEG(z.Di, HoleAngle(t, z)) + StaticSteel(t, z);
}

double MomentoStaticoCoronaOltre(double t, const SezioneCircolare& z) {
  return MomentoStaticoCerchio(t, z) + kPi * Square(z.Di) * std::cos(t) * z.D / 4;
}

double MomentoInerziaCerchio(double t, const SezioneCircolare& z) {
  return INE(z.D, t) + InertiaSteel(t, z);
}

double MomentoInerziaCorona(double t, const SezioneCircolare& z) {
  return INE(z.D, t) - INE(z.Di, HoleAngle(t, z)) + InertiaSteel(t, z);
}

double MomentoInerziaCoronaOltre(double t, const SezioneCircolare& z) {
  return MomentoInerziaCerchio(t, z) - Square(Square(z.Di / 2)) * kPi / 64 +
         kPi * Square(z.Di / 2) * Square(z.D / 4 - (z.D / 2) * std::cos(t));
}

void VerificaSezioneCircolare(const DatiCircolare& dati, RisultatiCircolare& risultati) {
  SezioneCircolare z{dati[1], dati[2], dati[3], dati[4], dati[5],
                     dati[6], dati[7], dati[8], dati[9], dati[10]};
  const EsitoC esito = Check(dati, z);
  risultati[0] = static_cast<double>(esito);
  if (esito != EsitoC::Fatto) return;
  const double M = std::fabs(dati[11]);
  if (M == 0) {
    std::fill(risultati.begin() + 1, risultati.end(), 0.0);
    return;
  }
  const bool turned = dati[11] < 0;
  if (turned) TurnOver(z);

  const Ranges ranges(z);
  const double t = Bisezione([&](double tm) { return MomentoStatico(ranges.Of(tm), tm, z); }, 0.0,
                             kPi, kTenSeconds);
  const double x = (1 - std::cos(t)) * z.D / 2;
  const double I = MomentoInerzia(ranges.Of(t), t, z);
  const double sc = M * x / I;
  const auto stress = [&](double area, double d) {
    return area != 0 ? M * ModuloN * (d - x) / I : 0;
  };
  const double up1 = stress(z.Ad1, z.D / 2 - z.Dd1 / 2), lo1 = stress(z.Ad1, z.Dd1 / 2 + z.D / 2);
  const double up2 = stress(z.Ad2, z.D / 2 - z.Dd2 / 2), lo2 = stress(z.Ad2, z.Dd2 / 2 + z.D / 2);
  const double g1 = stress(z.Ac1, z.d1), g2 = stress(z.Ac2, z.d2);

  RisultatiCircolare r = risultati;
  if (turned) {
    const double steel[] = {z.D - x, 0, -sc, lo1, up1, lo2, up2, g2, g1};
    std::copy(std::begin(steel), std::end(steel), r.begin() + 1);
  } else {
    const double steel[] = {x, -sc, 0, up1, lo1, up2, lo2, g1, g2};
    std::copy(std::begin(steel), std::end(steel), r.begin() + 1);
  }
  // Measures beyond all bounds, whose products leave the range of numbers.
  if (!std::isfinite(I) ||
      !std::all_of(r.begin() + 1, r.begin() + 10, [](double v) { return std::isfinite(v); })) {
    risultati[0] = static_cast<double>(EsitoC::GeometriaErrata);
    return;
  }
  int posMassimo = 0, posMinimo = 0;
  MassimoMinimoVettore(std::span(r).subspan(4, 6), r[10], r[11], posMassimo, posMinimo);
  if (posMassimo != 0) r[12] = posMassimo;
  risultati = r;
}

}  // namespace orm
