// The truss-joist slab against a plain search over all attempts with an independent solver of
// sections, lengths of bars reckoned a second time, and its own stated edges.
#include "structures/truss_slab/truss_slab.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "tests/unit/structures/section_oracle.h"

namespace orm {
namespace {

using Esito = EsitoSolaioT;

DatiSolaioT RandomSlab(std::mt19937& random) {
  const auto pick = [&](const auto& values) {
    return values[std::uniform_int_distribution<std::size_t>(0, std::size(values) - 1)(random)];
  };
  DatiSolaioT dati;
  dati.modulo = pick(kModuliSolaio);
  dati.luce = static_cast<double>(300 + random() % 401) / 100;
  dati.solettina = 4 + static_cast<int>(random() % 4);
  dati.blocco = pick(kBlocchi);
  dati.classeCls = pick(kClassiCls).classe;
  dati.tipoFerro = pick(kTipiDiFerro);
  dati.pesoProprio = PesoProprioSolaio(dati.modulo, dati.solettina, dati.blocco);
  dati.permanente = 50 * static_cast<int>(random() % 9);
  dati.accidentale = 50 * static_cast<int>(1 + random() % 12);
  dati.cSin = ParteDopoBarra(pick(kCoefficientiIncastro));
  dati.cDex = ParteDopoBarra(pick(kCoefficientiIncastro));
  dati.cMez = ParteDopoBarra(pick(kCoefficientiMezzeria));
  for (SceltaFerro& ferro : dati.ferri)
    if (random() % 4 == 0) ferro = pick(std::array{0.0, 8.0, 12.0, 14.0, 16.0});
  return dati;
}

// ---------------------------------------------------------------- the plain search

struct Stress {
  double upper = 0, lower = 0, steel = 0, axis = 0;
};

Stress Solve(const DatiSolaioT& dati, bool ribs, std::vector<test::Bar> steel, double M) {
  test::ElasticSection section;
  section.height = dati.H();
  if (ribs) section.AddBand(0, dati.solettina, dati.modulo.b, 20);
  section.AddBand(ribs ? dati.solettina : 0, dati.H(), ribs ? dati.modulo.b0 : dati.modulo.b, 60);
  std::erase_if(steel, [](const test::Bar& bar) { return bar.area == 0; });
  section.steel = steel;
  const test::ElasticState state = test::Solve(section, M);
  Stress stress{-state.ConcreteAt(0), -state.ConcreteAt(dati.H()), 0, state.axis};
  for (const test::Bar& bar : steel)
    stress.steel = std::max(stress.steel, state.SteelAt(bar.depth));
  return stress;
}

struct PlainSearch {
  explicit PlainSearch(const DatiSolaioT& dati) : d(dati) { esito = Run(); }

  const DatiSolaioT& d;
  Esito esito = Esito::Verificato;
  std::array<double, 5> diameters{};
  double zone = 0, tau = 0;
  bool close = false;  // a stress so near to its limit that the solvers may differ

 private:
  bool Holds(double value, double limit) {
    close = close || std::fabs(value / limit - 1) < 2e-3;
    return value <= limit;
  }

  // The diameter of a kind at attempt k, from 0, written out.
  double Diameter(std::size_t kind, std::size_t k) const {
    constexpr std::array<std::size_t, 5> kStarts = {0, 6, 12, 0, 6}, kCounts = {6, 6, 7, 6, 6};
    if (d.ferri[kind]) return *d.ferri[kind];
    return k < kStarts[kind] ? 0 : 6 + 2.0 * std::min(k - kStarts[kind], kCounts[kind] - 1);
  }

  Esito Run() {
    const Ammissibili limits = TensioniAmmissibiliSolaio(d);
    const double n = d.modulo.n, H = d.H();
    const double q = (d.pesoProprio + d.permanente + d.accidentale) * d.modulo.b / 100;
    const double Lc = 1.05 * d.luce, V = q * Lc / 2;
    if (d.ferri[3] == 0.0 && d.ferri[4] == 0.0) return Esito::SenzaMonconi;
    const auto area = [&](std::size_t kind) { return AreaDaDiametro(diameters[kind]); };
    // Span.
    std::vector<test::Bar> lower;
    bool holds = false, concrete = false;
    for (std::size_t k = 0; k < 19 && !holds; ++k) {
      for (const std::size_t kind : {0, 1, 2}) diameters[kind] = Diameter(kind, k);
      lower = {{H - 2, n * (area(0) + 0.39 + area(1))}, {H - 5, n * area(2)}};
      const Stress stress = Solve(d, true, lower, q * Lc * Lc / d.cMez * 100);
      concrete = Holds(stress.upper, limits.cls);
      holds = Holds(stress.steel, limits.acciaio) && concrete;
    }
    if (!holds) return concrete ? Esito::MezzeriaAcciaio : Esito::MezzeriaCls;
    // Stubs.
    const std::array M = {q * Lc * Lc / d.cSin, q * Lc * Lc / d.cDex};
    std::vector<test::Bar> steel;
    holds = false;
    for (std::size_t k = 0; k < 12 && !holds; ++k) {
      for (const std::size_t kind : {3, 4}) diameters[kind] = Diameter(kind, k);
      steel = lower;
      steel.push_back({4, n * (area(3) + area(4))});
      holds = true;
      for (const double m : M) {
        const Stress solid = Solve(d, false, steel, -m * 100);
        holds = Holds(solid.lower, limits.cls) && Holds(solid.steel, limits.acciaio) && holds;
      }
    }
    // Zones: the least one of the grid that serves a support, then the other, then shear.
    constexpr Esito kFailures[2][2] = {{Esito::SinistraCls, Esito::SinistraAcciaio},
                                       {Esito::DestraCls, Esito::DestraAcciaio}};
    zone = std::round(std::fmod(d.luce, 0.25) / 2 * 1000) / 1000;
    // Over the zone the moment falls by the mean of the shear.
    const auto ribs = [&](double m) {
      return Solve(d, true, steel, (-m + (V + V - q * zone) / 2 * zone) * 100);
    };
    for (const std::size_t side : {0, 1}) {
      const Stress solid = Solve(d, false, steel, -M[side] * 100);
      if (!Holds(solid.lower, limits.cls)) return kFailures[side][0];
      if (!Holds(solid.steel, limits.acciaio)) return kFailures[side][1];
      for (;; zone += 0.125) {
        if (zone >= 0.5) return Esito::ZonePieneMomenti;
        const Stress stress = ribs(M[side]);
        if (Holds(stress.lower, limits.cls) && Holds(stress.steel, limits.acciaio)) break;
      }
    }
    for (;; zone += 0.125) {
      if (zone >= 0.5) return Esito::ZonePieneTaglio;
      tau = 0;
      for (const double m : M) {
        const double x = ribs(m).axis, arm = (H - x) * 2 / 3 + (x - 4);
        tau = std::max(tau, (V - q * zone / 2) / (arm * d.modulo.b0));
      }
      if (Holds(tau, limits.taglio)) return Esito::Verificato;
    }
  }
};

TEST(TrussSlab, FindsWhatAPlainSearchFinds) {
  std::mt19937 random(54);
  int compared = 0;
  std::array<int, 10> outcomes{};
  for (int i = 0; i < 3000; ++i) {
    const DatiSolaioT dati = RandomSlab(random);
    const PlainSearch plain(dati);
    if (plain.close) continue;
    ++compared;
    const RisultatiSolaioT r = ProgettaSolaioT(dati);
    ++outcomes[static_cast<std::size_t>(r.esito)];
    ASSERT_EQ(r.esito, plain.esito) << "slab " << i;
    if (r.esito != Esito::Verificato) continue;
    for (std::size_t kind = 0; kind < 3; ++kind)
      ASSERT_EQ(r.campata[kind].diametro, plain.diameters[kind]) << "slab " << i;
    ASSERT_EQ(r.sinistra.lungo.diametro, plain.diameters[3]) << "slab " << i;
    ASSERT_EQ(r.destra.corto.diametro, plain.diameters[4]) << "slab " << i;
    ASSERT_NEAR(r.zonaPiena, plain.zone, 1e-9) << "slab " << i;
    ASSERT_NEAR(r.tau, plain.tau, 0.012) << "slab " << i;
  }
  EXPECT_GT(compared, 2000);
  for (const int times : outcomes) EXPECT_GT(times, 5);
}

// ---------------------------------------------------------------- lengths

// Up to a multiple of 5 cm, in m.
double UpTo5(double cm) { return std::ceil(cm / 5 - 1e-9) * 5 / 100; }

void ExpectStub(const Moncone& stub, double share, const Appoggio& support,
                const RisultatiSolaioT& r, double Lc) {
  if (stub.diametro == 0) return;
  // The moment has fallen by M as far from the middle as what is left of it asks for.
  const double half = r.taglio / r.q, left = half * half - 2 * support.momento * share / r.q;
  const double x = std::max(left < 0 ? Lc / 2 : half - std::sqrt(left), r.zonaPiena);
  EXPECT_NEAR(stub.campata, std::max(UpTo5(100 * x + 2.5 * stub.diametro), 0.15), 1e-9);
  // The hook takes 20 diameters off the anchorage; under 30 diameters, or with less than 15 cm
  // left, it is 15 cm.
  const double whole = stub.diametro * support.acciaioPiena / (40 * r.ammissibili.aderenza);
  const double hooked = whole - 2 * stub.diametro;
  EXPECT_NEAR(stub.incastro, whole < 3 * stub.diametro || hooked < 15 ? 0.15 : UpTo5(hooked), 1e-9);
}

TEST(TrussSlab, LengthsOfTheBars) {
  std::mt19937 random(21);
  int designs = 0;
  for (int i = 0; i < 2000 / ORM_RANDOM_SHARE && !HasFailure(); ++i) {
    const DatiSolaioT dati = RandomSlab(random);
    const RisultatiSolaioT r = ProgettaSolaioT(dati);
    if (r.esito != Esito::Verificato) continue;
    SCOPED_TRACE("slab " + std::to_string(i));
    ++designs;
    const double Lc = 1.05 * dati.luce, n = dati.modulo.n;
    const double longer = AreaDaDiametro(r.sinistra.lungo.diametro);
    const double shorter = AreaDaDiametro(r.sinistra.corto.diametro);
    for (const Appoggio* a : {&r.sinistra, &r.destra}) {
      ExpectStub(a->lungo, 1, *a, r, Lc);
      ExpectStub(a->corto, shorter / (longer + shorter), *a, r, Lc);
    }
    // The bars of the span: the first, and further ones until the shear has its steel, run through;
    // the others stop, the last one first.
    const auto area = [&](std::size_t k) { return n * AreaDaDiametro(r.campata[k].diametro); };
    const auto moment = [&](std::size_t k) { return area(k) * (dati.H() - (k == 2 ? 5 : 2)); };
    double through = 0.39 * n, stopped = 0;
    std::size_t running = 0;
    for (std::size_t k = 0; k < 3; ++k)
      if (area(k) > 0 && (through == 0.39 * n || through < r.taglio / r.ammissibili.acciaio))
        through += area(k), running = k + 1;
    const double all = 0.39 * n * (dati.H() - 2) + moment(0) + moment(1) + moment(2);
    for (std::size_t k = 3; k-- > 0;) {
      const double diameter = r.campata[k].diametro, length = r.campata[k].lunghezza;
      if (diameter == 0) continue;
      stopped += moment(k);
      const double anchorage = diameter * r.taglio / through / (40 * r.ammissibili.aderenza);
      EXPECT_NEAR(length,
                  k < running ? dati.luce + 2 * UpTo5(anchorage)
                              : Lc * std::sqrt(8 / dati.cMez * stopped / all) + 0.05 * diameter,
                  1e-9);
    }
  }
  EXPECT_GT(designs, 500 / ORM_RANDOM_SHARE);
}

// ---------------------------------------------------------------- stated edges

TEST(TrussSlab, AllowedStressesAndSelfWeight) {
  const auto with = [](const char* cls, const char* ferro, double solettina) {
    DatiSolaioT dati;
    dati.classeCls = cls, dati.tipoFerro = ferro, dati.solettina = solettina;
    return TensioniAmmissibiliSolaio(dati);
  };
  EXPECT_EQ(with("250", "Fe B 44 k", 4).cls, 59.5);
  EXPECT_EQ(with("250", "Fe B 44 k", 5).cls, 76.5);
  EXPECT_EQ(with("250", "Fe B 44 k", 5).aderenza, 5.33 * 3);
  EXPECT_EQ(with("250", "Fe B 32 k", 5).aderenza, 5.33 * 1.5);  // 1600 exactly
  EXPECT_EQ(with("500", "acciaio ignoto", 4).acciaio, 1);
  EXPECT_EQ(with("500", "acciaio ignoto", 4).cls, 1);
  EXPECT_EQ(PesoLaterizio("S 38 x 24"), 4.75);
  EXPECT_EQ(PesoLaterizio("R 38 x 24"), 1);
  // 6 x 25 + 25 x 0.52 x 3.9 + 25 x 2 x 30 x 0.25 = 575.7
  EXPECT_EQ(PesoProprioSolaio(kModuliSolaio[1], 6, "R 38 x 25"), 580);
  EXPECT_EQ(ParteDopoBarra("12"), 0);
}

TEST(TrussSlab, AnchoragesByHand) {
  // 16 mm, tb 8: lb = sigma / 20. 47.5 is under 30 diameters (48); 48.5 less the hook of 32
  // is 16.5.
  EXPECT_DOUBLE_EQ(AncoraggioMoncone(16, 950, 8), 0.15);
  EXPECT_DOUBLE_EQ(AncoraggioMoncone(16, 970, 8), 0.2);
  // 6 mm, tb 4: lb = sigma x 6 / 160. 21 less 12 is under 15; 27.3 leaves 15.3.
  EXPECT_DOUBLE_EQ(AncoraggioMoncone(6, 560, 4), 0.15);
  EXPECT_DOUBLE_EQ(AncoraggioMoncone(6, 728, 4), 0.2);
  // lb = 15 is raised to 15, which is lb again and loses its hook: 3, up to 5.
  EXPECT_DOUBLE_EQ(AncoraggioMoncone(6, 400, 4), 0.05);
  EXPECT_DOUBLE_EQ(MinimoAncoraggio(9), 0.15);
  // A moment that never falls so far: the middle. No steel: no length.
  EXPECT_EQ(DistanzaDiCaduta(100, 50, 101, 4), 2);
  EXPECT_EQ(LunghezzaFerroIntegrativo(4, 0, 0, 12), 0);
}

}  // namespace
}  // namespace orm
