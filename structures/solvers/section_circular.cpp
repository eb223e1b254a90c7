#include "structures/solvers/section_circular.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "structures/solvers/arrays.h"
#include "structures/solvers/working_stress.h"

namespace orm {
namespace {

constexpr double kPi = 3.14159265358979;
constexpr double kTenSeconds = kPi / 64800.0;  // of arc

// First and second moment of the segment of half angle u of a circle of diameter Q about its chord.
double SEG(double Q, double u) {
  const double sine = std::sin(u), cosine = std::cos(u);
  return Q * Q * Q * (sine * sine * sine / 12 - cosine * (u - sine * cosine) / 8);
}

// Of a circle wholly above its chord it holds as well. On numbers, or on sums that can be written.
template <class Numero>
Numero INE(double Q, double u) {
  const Numero q(Q), angle(u), sine(std::sin(u)), cosine(std::cos(u));
  return q * q * q * q *
         (angle * (1 + 4 * (cosine * cosine)) / 64 -
          (15 - 2 * (sine * sine)) * sine * cosine / 192);
}

double StaticSteel(double t, const DatiCircolare& z) {
  const double c = std::cos(t);
  const double x = z.D / 2 - z.D * c / 2;
  return -kModuloN * z.D * c * (z.Ad1 + z.Ad2) / 2 - kModuloN * z.Ac1 * (z.d1 - x) -
         kModuloN * z.Ac2 * (z.d2 - x);
}

// What is absent adds nothing.
template <class Numero>
Numero InertiaSteel(double t, const DatiCircolare& z) {
  const auto square = [](const Numero& v) { return v * v; };
  const double c = std::cos(t);
  const double x = z.D / 2 - z.D * c / 2;
  const auto ring = [&](double diameter, double area) {
    return area == 0 ? Numero(0) : square(Numero(diameter)) * area / 8;
  };
  const auto group = [&](double area, double depth) {
    return area == 0 ? Numero(0) : Numero(kModuloN) * area * square(Numero(depth) - x);
  };
  return Numero(kModuloN) * square(Numero(z.D)) * square(Numero(c)) * (Numero(z.Ad1) + z.Ad2) / 4 +
         kModuloN * (ring(z.Dd1, z.Ad1) + ring(z.Dd2, z.Ad2)) + group(z.Ac1, z.d1) +
         group(z.Ac2, z.d2);
}

// What the wholly compressed hole takes away and gives.
template <class Numero>
Numero TakenByHole(const DatiCircolare& z) {
  const Numero half = Numero(z.Di) / 2, area = half * half;
  return area * area * kPi / 64;
}
template <class Numero>
Numero GivenByHole(double t, const DatiCircolare& z) {
  const Numero half = Numero(z.Di) / 2, arm = Numero(z.D) / 4 - Numero(z.D) / 2 * std::cos(t);
  return kPi * (half * half) * (arm * arm);
}

// The formulas that hold for an axis of half angle t: the first and the second moment.
struct Formulas {
  double (*first)(double, const DatiCircolare&);
  double (*second)(double, const DatiCircolare&);
};
constexpr Formulas kCerchio{MomentoStaticoCerchio, MomentoInerziaCerchio};
constexpr Formulas kCorona{MomentoStaticoCorona, MomentoInerziaCorona};
constexpr Formulas kCoronaOltre{MomentoStaticoCoronaOltre, MomentoInerziaCoronaOltre};

class Ranges {
 public:
  explicit Ranges(const DatiCircolare& z)
      : solid_(z.Di == 0), t0_(solid_ ? 0 : std::atan(std::sqrt(Square(z.D / z.Di) - 1))) {}
  const Formulas& At(double t) const {
    if (solid_ || t <= t0_) return kCerchio;
    return t < kPi - t0_ ? kCorona : kCoronaOltre;
  }

 private:
  bool solid_;
  double t0_;  // half angle at which the chord touches the hole
};

// A group within the hole, or nearer than the least cover to its edge, whatever its area.
bool InHoleBand(double d, const DatiCircolare& z) {
  return z.Di != 0 && d > z.D / 2 - z.Di / 2 - kCopriferroMinimo &&
         d < z.D / 2 + z.Di / 2 + kCopriferroMinimo;
}

// A ring may lie up to 2 cm of diameter inside the hole: the tolerance is meant that way.
bool RingInHole(double area, double diameter, const DatiCircolare& z) {
  return area != 0 && z.Di != 0 && diameter < z.Di - kCopriferroMinimo;
}

template <class Valori>
bool AllFinite(const Valori& values) {
  return std::all_of(std::begin(values), std::end(values),
                     [](double v) { return std::isfinite(v); });
}

EsitoC Check(const DatiCircolare& z) {
  const double data[] = {z.D, z.Di, z.Ad1, z.Dd1, z.Ad2, z.Dd2, z.Ac1, z.d1, z.Ac2, z.d2, z.M};
  if (!AllFinite(data)) return EsitoC::GeometriaErrata;
  if (z.D <= 0 || z.Di < 0 || z.D <= z.Di) return EsitoC::GeometriaErrata;
  const double deepest = z.D - kCopriferroMinimo;
  if (z.Dd1 < 0 || z.Dd2 < 0 || z.Dd1 > deepest || z.Dd2 > deepest ||
      (z.Ac1 != 0 && z.d1 < kCopriferroMinimo) || (z.Ac2 != 0 && z.d2 < kCopriferroMinimo) ||
      z.d1 > deepest || z.d2 > deepest)
    return EsitoC::ArmaturaErrata;
  if (InHoleBand(z.d1, z) || InHoleBand(z.d2, z)) return EsitoC::ArmaturaErrata;
  if (RingInHole(z.Ad1, z.Dd1, z) || RingInHole(z.Ad2, z.Dd2, z)) return EsitoC::ArmaturaErrata;
  if (!(z.Ad1 + z.Ad2 + z.Ac1 + z.Ac2 > 0)) return EsitoC::SenzaArmatura;
  return EsitoC::Fatto;
}

// The circles are their own mirror image: only the groups move, the second one only with the first.
void TurnOver(DatiCircolare& z) {
  if (z.d1 == 0) return;
  z.d1 = z.D - z.d1;
  if (z.d2 != 0) z.d2 = z.D - z.d2;
}

}  // namespace

// Half angle on the hole of the chord that has half angle t on the outer circle. Beside the angles
// where the chord touches the hole, k may pass 1 by the last digit.
double SemiangoloForo(double t, const DatiCircolare& z) {
  const double k = std::cos(t) * z.D / z.Di;
  return kPi / 2 - std::atan(k / std::sqrt(std::max(0.0, 1 - Square(k))));
}

double MomentoStaticoCerchio(double t, const DatiCircolare& z) {
  return SEG(z.D, t) + StaticSteel(t, z);
}

double MomentoStaticoCorona(double t, const DatiCircolare& z) {
  return SEG(z.D, t) - SEG(z.Di, SemiangoloForo(t, z)) + StaticSteel(t, z);
}

double MomentoStaticoCoronaOltre(double t, const DatiCircolare& z) {
  return MomentoStaticoCerchio(t, z) + kPi * Square(z.Di) * std::cos(t) * z.D / 4;
}

double MomentoInerziaCerchio(double t, const DatiCircolare& z) {
  return INE<double>(z.D, t) + InertiaSteel<double>(t, z);
}

double MomentoInerziaCorona(double t, const DatiCircolare& z) {
  return INE<double>(z.D, t) - INE<double>(z.Di, SemiangoloForo(t, z)) + InertiaSteel<double>(t, z);
}

double MomentoInerziaCoronaOltre(double t, const DatiCircolare& z) {
  return MomentoInerziaCerchio(t, z) - TakenByHole<double>(z) + GivenByHole<double>(t, z);
}

std::vector<ParteInerzia> PartiInerzia(double t, const DatiCircolare& z) {
  using Quale = ParteInerzia::Quale;
  std::vector<ParteInerzia> parti{{Quale::Segmento, INE<Conto>(z.D, t)}};
  const auto* formule = &Ranges(z).At(t);
  if (formule == &kCorona)
    parti.push_back({Quale::Foro, INE<Conto>(z.Di, SemiangoloForo(t, z)), true});
  parti.push_back({Quale::Acciaio, InertiaSteel<Conto>(t, z)});
  if (formule == &kCoronaOltre) {
    parti.push_back({Quale::TolteDalForo, TakenByHole<Conto>(z), true});
    parti.push_back({Quale::DateDalForo, GivenByHole<Conto>(t, z)});
  }
  return parti;
}

DatiCircolare ComeVerificata(const DatiCircolare& dati) {
  DatiCircolare z = dati;
  if (dati.M < 0) TurnOver(z);
  return z;
}

void VerificaSezioneCircolare(const DatiCircolare& dati, RisultatiCircolare& risultati) {
  risultati.esito = Check(dati);
  if (risultati.esito != EsitoC::Fatto) return;
  const double M = std::fabs(dati.M);
  if (M == 0) {
    risultati = {};
    return;
  }
  const DatiCircolare z = ComeVerificata(dati);
  const bool turned = dati.M < 0;

  const Ranges ranges(z);
  const double t =
      Bisezione([&](double tm) { return ranges.At(tm).first(tm, z); }, 0.0, kPi, kTenSeconds);
  const double x = (1 - std::cos(t)) * z.D / 2;
  const double I = ranges.At(t).second(t, z);
  const double sc = M * x / I;
  const auto stress = [&](double area, double d) {
    return area != 0 ? M * kModuloN * (d - x) / I : 0;
  };
  const double up1 = stress(z.Ad1, z.D / 2 - z.Dd1 / 2), lo1 = stress(z.Ad1, z.Dd1 / 2 + z.D / 2);
  const double up2 = stress(z.Ad2, z.D / 2 - z.Dd2 / 2), lo2 = stress(z.Ad2, z.Dd2 / 2 + z.D / 2);
  const double g1 = stress(z.Ac1, z.d1), g2 = stress(z.Ac2, z.d2);

  RisultatiCircolare r = risultati;
  r.x = x;
  r.semiangolo = t;
  r.inerzia = I;
  r.asse = turned ? z.D - x : x;
  r.clsSup = turned ? 0 : -sc;
  r.clsInf = turned ? -sc : 0;
  if (turned)
    r.acciaio = {lo1, up1, lo2, up2, g2, g1};
  else
    r.acciaio = {up1, lo1, up2, lo2, g1, g2};
  // Measures beyond all bounds, whose products leave the range of numbers.
  if (!AllFinite(std::array{I, r.asse, sc}) || !AllFinite(r.acciaio)) {
    risultati.esito = EsitoC::GeometriaErrata;
    return;
  }
  int posMinimo = 0;
  MassimoMinimoVettore(r.acciaio, r.massimo, r.minimo, r.posMassimo, posMinimo);
  risultati = r;
}

}  // namespace orm
