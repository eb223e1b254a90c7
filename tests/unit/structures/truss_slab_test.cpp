// The truss-joist slab against a plain search over all attempts with an independent solver of
// sections, against numeric integration of the loads, and at its own stated edges.
#include "structures/truss_slab/truss_slab.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>
#include <vector>

#include "tests/unit/structures/section_oracle.h"

namespace orm {
namespace {

using Esito = EsitoSolaioT;

DatiSolaioT Slab() {
  DatiSolaioT dati;
  dati.luce = 5;
  dati.solettina = 4;
  dati.blocco = "R 38 x 20";
  dati.classeCls = "250";
  dati.tipoFerro = "Fe B 44 k";
  dati.pesoProprio = 305;
  dati.permanente = 150;
  dati.accidentale = 200;
  dati.cSin = dati.cDex = 12;
  dati.cMez = 10;
  return dati;
}

DatiSolaioT RandomSlab(std::mt19937& random) {
  const auto pick = [&](const auto& values) {
    return values[std::uniform_int_distribution<std::size_t>(0, std::size(values) - 1)(random)];
  };
  DatiSolaioT dati;
  dati.modulo = pick(kModuliSolaio);
  dati.luce = 3 + 0.05 * static_cast<int>(random() % 81);
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

struct Search {
  Esito esito = Esito::Verificato;
  std::array<double, 5> diameters{};
  double zone = 0, tau = 0;
  bool close = false;  // a stress so near to its limit that the solvers may differ
};

class PlainSearch {
 public:
  explicit PlainSearch(const DatiSolaioT& dati) : d_(dati) { Run(); }
  Search found;

 private:
  bool Holds(double value, double limit) {
    if (std::fabs(value / limit - 1) < 2e-3) found.close = true;
    return value <= limit;
  }

  // The diameters of a kind over the attempts, written out.
  std::vector<double> Ladder(std::size_t kind) const {
    static const std::vector<double> up = {6, 8, 10, 12, 14, 16, 18};
    if (d_.ferri[kind]) return std::vector<double>(19, *d_.ferri[kind]);
    const std::array<std::size_t, 5> starts = {0, 6, 12, 0, 6}, counts = {6, 6, 7, 6, 6};
    std::vector<double> ladder(starts[kind], 0);
    for (std::size_t i = 0; ladder.size() < 19; ++i)
      ladder.push_back(up[std::min(i, counts[kind] - 1)]);
    return ladder;
  }

  void Run() {
    const Ammissibili limits = TensioniAmmissibiliSolaio(d_);
    const double n = d_.modulo.n, H = d_.H();
    const double q = (d_.pesoProprio + d_.permanente + d_.accidentale) * d_.modulo.b / 100;
    const double Lc = 1.05 * d_.luce, V = q * Lc / 2;
    if (d_.ferri[3] == 0.0 && d_.ferri[4] == 0.0) return Fail(Esito::SenzaMonconi);
    const auto one = Ladder(0), two = Ladder(1), three = Ladder(2), longer = Ladder(3),
               shorter = Ladder(4);
    // Span.
    std::vector<test::Bar> lower;
    bool holds = false, concrete = false;
    for (std::size_t k = 0; k < 19 && !holds; ++k) {
      found.diameters = {one[k], two[k], three[k], 0, 0};
      lower = {{H - 2, n * (AreaDaDiametro(one[k]) + 0.39 + AreaDaDiametro(two[k]))},
               {H - 5, n * AreaDaDiametro(three[k])}};
      const Stress stress = Solve(d_, true, lower, q * Lc * Lc / d_.cMez * 100);
      concrete = Holds(stress.upper, limits.cls);
      holds = Holds(stress.steel, limits.acciaio) && concrete;
    }
    if (!holds) return Fail(concrete ? Esito::MezzeriaAcciaio : Esito::MezzeriaCls);
    // Stubs.
    const std::array<double, 2> M = {q * Lc * Lc / d_.cSin, q * Lc * Lc / d_.cDex};
    std::vector<test::Bar> steel;
    holds = false;
    for (std::size_t k = 0; k < 12 && !holds; ++k) {
      found.diameters[3] = longer[k];
      found.diameters[4] = shorter[k];
      steel = lower;
      steel.push_back({4, n * (AreaDaDiametro(longer[k]) + AreaDaDiametro(shorter[k]))});
      holds = true;
      for (const double m : M) {
        const Stress solid = Solve(d_, false, steel, -m * 100);
        holds = Holds(solid.lower, limits.cls) & Holds(solid.steel, limits.acciaio) && holds;
      }
    }
    const std::array failures = {std::array{Esito::SinistraCls, Esito::SinistraAcciaio},
                                 std::array{Esito::DestraCls, Esito::DestraAcciaio}};
    // Zones: the least one of the grid that serves a support, then the other, then shear.
    const double rest = std::round(std::fmod(d_.luce + 1e-9, 0.25) / 2 * 1000) / 1000;
    std::size_t step = 0;
    const auto zone = [&] { return rest + 0.125 * static_cast<double>(step); };
    const auto ribs = [&](std::size_t side) {
      // Moment at the end of the zone by integrating the shear from the support.
      double m = -M[side];
      const int slices = 400;
      for (int i = 0; i < slices; ++i) m += (V - q * zone() * (i + 0.5) / slices) * zone() / slices;
      return Solve(d_, true, steel, m * 100);
    };
    for (std::size_t side = 0; side < 2; ++side) {
      const Stress solid = Solve(d_, false, steel, -M[side] * 100);
      if (!Holds(solid.lower, limits.cls)) return Fail(failures[side][0]);
      if (!Holds(solid.steel, limits.acciaio)) return Fail(failures[side][1]);
      for (;; ++step) {
        if (zone() >= 0.5) return Fail(Esito::ZonePieneMomenti);
        const Stress stress = ribs(side);
        if (Holds(stress.lower, limits.cls) & Holds(stress.steel, limits.acciaio)) break;
      }
    }
    for (;; ++step) {
      if (zone() >= 0.5) return Fail(Esito::ZonePieneTaglio);
      found.tau = 0;
      for (const std::size_t side : {0, 1}) {
        const double x = ribs(side).axis;
        const double arm = (H - x) * 2 / 3 + (x - 4);
        found.tau = std::max(found.tau, (V - q * zone() / 2) / (arm * d_.modulo.b0));
      }
      if (Holds(found.tau, limits.taglio)) break;
    }
    found.zone = zone();
  }

  void Fail(Esito esito) { found.esito = esito; }

  const DatiSolaioT& d_;
};

TEST(TrussSlab, FindsWhatAPlainSearchFinds) {
  std::mt19937 random(54);
  int compared = 0;
  std::array<int, 10> outcomes{};
  for (int i = 0; i < 3000; ++i) {
    const DatiSolaioT dati = RandomSlab(random);
    const Search plain = PlainSearch(dati).found;
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

// Moment of a support at distance x, by adding up the shear of short slices.
double FallenBy(double V, double q, double x) {
  double M = 0;
  const int slices = 20000;
  for (int i = 0; i < slices; ++i) M += (V - q * x * (i + 0.5) / slices) * x / slices;
  return M;
}

TEST(TrussSlab, TheMomentHasFallenWhereTheStubEnds) {
  std::mt19937 random(7);
  for (int i = 0; i < 200; ++i) {
    const double q = 200 + random() % 900, Lc = 3 + 0.01 * (random() % 400), V = q * Lc / 2;
    const double M = q * Lc * Lc / (8.0 + random() % 30);
    const double x = DistanzaDiCaduta(V, q, M, Lc);
    EXPECT_NEAR(FallenBy(V, q, x), M, 1e-6 * M);
    EXPECT_LE(x, Lc / 2 + 1e-9);
  }
  EXPECT_EQ(DistanzaDiCaduta(100, 50, 101, 4), 2);  // never falls so far
}

TEST(TrussSlab, StubsCoverTheMomentAndAreNotInsideTheSolidZone) {
  std::mt19937 random(21);
  int designs = 0;
  for (int i = 0; i < 2000; ++i) {
    const DatiSolaioT dati = RandomSlab(random);
    const RisultatiSolaioT r = ProgettaSolaioT(dati);
    if (r.esito != Esito::Verificato) continue;
    ++designs;
    for (const Appoggio* a : {&r.sinistra, &r.destra})
      for (const Moncone* m : {&a->lungo, &a->corto}) {
        if (m->diametro == 0) continue;
        const double free = m->campata - 0.025 * m->diametro;  // without its 25 diameters
        EXPECT_GE(free, r.zonaPiena - 1e-9);
        EXPECT_LT(std::fabs(std::remainder(m->campata * 100, 5)), 1e-9);
        EXPECT_GE(m->incastro, 0.15 - 1e-9);
        // The lone stub, or the long one, reaches where the moment ends.
        const double area = AreaDaDiametro(a->corto.diametro);
        const double both = area + AreaDaDiametro(a->lungo.diametro);
        const double share = m == &a->corto ? area / both : 1;
        const double half = dati.luce * 1.05 / 2;
        if (free < half) {
          EXPECT_GE(FallenBy(r.taglio, r.q, free), a->momento * share - 0.5);
        }
      }
  }
  EXPECT_GT(designs, 500);
}

TEST(TrussSlab, ShearSteelReachesTheSupports) {
  std::mt19937 random(22);
  for (int i = 0; i < 2000; ++i) {
    const DatiSolaioT dati = RandomSlab(random);
    const RisultatiSolaioT r = ProgettaSolaioT(dati);
    if (r.esito != Esito::Verificato) continue;
    double running = 0.39 * dati.modulo.n, all = running;
    for (const Barra& barra : r.campata) {
      if (barra.diametro == 0) continue;
      const double area = dati.modulo.n * AreaDaDiametro(barra.diametro);
      all += area;
      if (barra.lunghezza < dati.luce) continue;
      running += area;
    }
    const double wanted = r.taglio / r.ammissibili.acciaio;
    // Bars that stop may still be longer than the clear span, so this is a bound from below.
    EXPECT_GE(running + 1e-9, std::min(wanted, all)) << "slab " << i;
  }
}

// ---------------------------------------------------------------- stated edges

TEST(TrussSlab, SolidZonesBeginFromWhatTheBlocksLeave) {
  DatiSolaioT dati = Slab();
  dati.cSin = dati.cDex = 36;
  dati.accidentale = 0;
  const auto zone = [&](double luce) {
    dati.luce = luce;
    return ProgettaSolaioT(dati).zonaPiena;
  };
  EXPECT_EQ(zone(4), 0);
  EXPECT_EQ(zone(4.25), 0);
  EXPECT_DOUBLE_EQ(zone(4.1), 0.05);
  EXPECT_DOUBLE_EQ(zone(4.03), 0.015);
}

TEST(TrussSlab, AllowedStressesGoByTheUpperSlabAndTheSteel) {
  DatiSolaioT dati = Slab();
  EXPECT_EQ(TensioniAmmissibiliSolaio(dati).cls, 59.5);
  dati.solettina = 5;
  EXPECT_EQ(TensioniAmmissibiliSolaio(dati).cls, 76.5);
  EXPECT_EQ(TensioniAmmissibiliSolaio(dati).aderenza, 5.33 * 3);
  dati.tipoFerro = "Fe B 32 k";  // 1600 exactly
  EXPECT_EQ(TensioniAmmissibiliSolaio(dati).aderenza, 5.33 * 1.5);
  dati.tipoFerro = "acciaio ignoto";
  dati.classeCls = "500";
  EXPECT_EQ(TensioniAmmissibiliSolaio(dati).acciaio, 1);
  EXPECT_EQ(TensioniAmmissibiliSolaio(dati).cls, 1);
}

TEST(TrussSlab, WithAllBarsGivenTheAttemptsRepeatOneSection) {
  DatiSolaioT dati = Slab();
  dati.ferri = {10.0, 0.0, 0.0, 16.0, 16.0};
  EXPECT_EQ(ProgettaSolaioT(dati).esito, Esito::MezzeriaAcciaio);
  dati.ferri[0] = 14.0;
  EXPECT_EQ(ProgettaSolaioT(dati).esito, Esito::Verificato);
}

TEST(TrussSlab, DesigningAgainWithTheChosenBarsChangesNothing) {
  const RisultatiSolaioT first = ProgettaSolaioT(Slab());
  DatiSolaioT dati = Slab();
  for (std::size_t i = 0; i < 3; ++i) dati.ferri[i] = first.campata[i].diametro;
  dati.ferri[3] = first.sinistra.lungo.diametro;
  dati.ferri[4] = first.sinistra.corto.diametro;
  const RisultatiSolaioT again = ProgettaSolaioT(dati);
  EXPECT_EQ(again.tau, first.tau);
  EXPECT_EQ(again.destra.lungo.Lunghezza(), first.destra.lungo.Lunghezza());
}

TEST(TrussSlab, Anchorages) {
  // 16 mm, 1600 kg/cmq, tb 18: lb = 35.56; less 32 it is under a third (11.85), 10 diameters
  // (16) and 15 cm, so 15.
  EXPECT_DOUBLE_EQ(AncoraggioMoncone(16, 1600, 18), 0.15);
  // 16 mm, 2600, tb 8: lb = 130; 130 - 32 stays: 98 goes up to 100.
  EXPECT_DOUBLE_EQ(AncoraggioMoncone(16, 2600, 8), 1.0);
  // 6 mm, 400, tb 4: lb = 15; 15 - 12 < 5, so 5; 5 - 12 < 6, so 6; 6 - 12 < 15, so 15, which is lb
  // again and loses its hook: 3, up to 5.
  EXPECT_DOUBLE_EQ(AncoraggioMoncone(6, 400, 4), 0.05);
  EXPECT_DOUBLE_EQ(MinimoAncoraggio(3), 0.15);
  EXPECT_DOUBLE_EQ(MinimoAncoraggio(15.01), 0.2);
  // 14 x (860 / 1.93) / (40 x 16) = 9.75.
  EXPECT_DOUBLE_EQ(AncoraggioCampata(860, 1.93, 14, 16), 0.1);
  EXPECT_EQ(LunghezzaFerroIntegrativo(4, 0, 0, 12), 0);
}

TEST(TrussSlab, BlocksAndCoefficients) {
  EXPECT_EQ(PesoLaterizio("S 38 x 24"), 4.75);
  EXPECT_EQ(PesoLaterizio("R 38 x 25"), 3.9);
  EXPECT_EQ(PesoLaterizio("R 38 x 24"), 1);
  EXPECT_EQ(ParteDopoBarra("1/12"), 12);
  EXPECT_EQ(ParteDopoBarra("12"), 0);
  // 6 x 25 + 25 x 0.52 x 3.9 + 25 x 2 x 30 x 0.25 = 575.7
  EXPECT_EQ(PesoProprioSolaio(kModuliSolaio[1], 6, "R 38 x 25"), 580);
  EXPECT_FALSE(AltezzaInsufficiente(3.80, 16));
  EXPECT_TRUE(AltezzaInsufficiente(3.81, 16));
}

}  // namespace
}  // namespace orm
