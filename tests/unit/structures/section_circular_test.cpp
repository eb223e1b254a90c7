// VerificaSezioneCircolare against equilibrium on strips, and its own stated oddities.
#include "structures/solvers/section_circular.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "tests/unit/structures/section_oracle.h"

namespace orm {
namespace {

using std::numbers::pi;
using test::Between;
using test::ElasticSection;
using test::ElasticState;

RisultatiCircolare Results(const DatiCircolare& dati) {
  RisultatiCircolare risultati;
  VerificaSezioneCircolare(dati, risultati);
  return risultati;
}

// Strips between equal steps of the angle, each as wide as its area asks for.
void AddDisc(ElasticSection& section, double D, double centre, double sign) {
  constexpr int kStrips = 500;
  const auto depth = [&](int i) { return centre - D / 2 * std::cos(pi * i / kStrips); };
  const auto areaAbove = [&](int i) {
    const double u = pi * i / kStrips;
    return D * D / 4 * (u - std::sin(u) * std::cos(u));
  };
  for (int i = 0; i < kStrips; ++i)
    section.concrete.push_back(
        {depth(i), depth(i + 1),
         sign * (areaAbove(i + 1) - areaAbove(i)) / (depth(i + 1) - depth(i))});
}

ElasticSection Strips(const DatiCircolare& z) {
  ElasticSection section;
  section.height = z.D;
  AddDisc(section, z.D, z.D / 2, 1);
  if (z.Di > 0) AddDisc(section, z.Di, z.D / 2, -1);
  constexpr int kBars = 48;
  for (const auto& [area, diameter] : {std::pair{z.Ad1, z.Dd1}, std::pair{z.Ad2, z.Dd2}})
    for (int i = 0; i < kBars && area > 0; ++i)
      section.steel.push_back(
          {z.D / 2 - diameter / 2 * std::cos(2 * pi * i / kBars), area / kBars});
  if (z.Ac1 > 0) section.steel.push_back({z.d1, z.Ac1});
  if (z.Ac2 > 0) section.steel.push_back({z.d2, z.Ac2});
  return section;
}

DatiCircolare RandomSection(std::mt19937& random, bool hole) {
  const auto between = [&](double least, double most) { return Between(random, least, most); };
  DatiCircolare z;
  z.D = between(30, 250);
  if (hole) z.Di = between(0.05, (z.D - 9) / z.D) * z.D;
  const auto rings = random() % 4;
  if (rings != 1) z.Ad1 = between(0.5, 0.02 * z.D * z.D), z.Dd1 = between(z.Di, z.D - 2);
  if (rings == 2) z.Ad2 = between(0.5, 0.01 * z.D * z.D), z.Dd2 = between(z.Di, z.D - 2);
  const double wall = z.D / 2 - z.Di / 2 - 2;
  if (rings == 1 || random() % 2 == 0) {
    z.Ac1 = between(0.5, 0.005 * z.D * z.D), z.d1 = between(2, wall);
    z.Ac2 = between(0.5, 0.005 * z.D * z.D), z.d2 = z.D - between(2, wall);
  }
  z.M = between(1e4, 1e7) * (random() % 2 == 0 ? 1 : -1);
  return z;
}

// Whether the axis leaves the whole hole in the compressed part: there the settled expressions are
// not those of elastic theory.
bool HoleCompressed(const DatiCircolare& z, double axis) {
  if (z.Di == 0) return false;
  return (z.M < 0 ? z.D - axis : axis) > z.D / 2 + z.Di / 2 - 0.01 * z.D;
}

void ExpectEquilibrium(const DatiCircolare& z, const RisultatiCircolare& r,
                       const ElasticState& state) {
  // Half of the last interval of the search, ten seconds of arc at most, moves the axis by this.
  const double axis = z.D / 2 * pi / 64800 / 2 + 2e-5 * z.D;
  const auto near = [&](double value, double expected, double slope) {
    EXPECT_NEAR(value, expected,
                slope * std::fabs(state.curvature) * axis + 2e-4 * std::fabs(expected));
  };
  EXPECT_NEAR(r.asse, state.axis, axis);
  near(r.clsSup, state.ConcreteAt(0), 1);
  near(r.clsInf, state.ConcreteAt(z.D), 1);
  const auto steel = [&](PuntoArmatura point, double area, double depth) {
    near(r.acciaio[point], area > 0 ? state.SteelAt(depth) : 0, 15);
  };
  steel(Sopra1, z.Ad1, z.D / 2 - z.Dd1 / 2);
  steel(Sotto1, z.Ad1, z.D / 2 + z.Dd1 / 2);
  steel(Sopra2, z.Ad2, z.D / 2 - z.Dd2 / 2);
  steel(Sotto2, z.Ad2, z.D / 2 + z.Dd2 / 2);
  // With a negative moment the two groups have changed places.
  steel(z.M < 0 ? Gruppo2 : Gruppo1, z.Ac1, z.d1);
  steel(z.M < 0 ? Gruppo1 : Gruppo2, z.Ac2, z.d2);
  const auto [least, greatest] = std::minmax_element(r.acciaio.begin(), r.acciaio.end());
  EXPECT_EQ(r.massimo, *greatest);
  EXPECT_EQ(r.minimo, std::min(*least, 0.0));
  EXPECT_EQ(r.acciaio[static_cast<std::size_t>(r.posMassimo) - 1], *greatest);
}

TEST(SectionCircular, AgreesWithEquilibriumOnStrips) {
  std::mt19937 random(20020316);
  int compared = 0, cut = 0;
  for (int i = 0; i < 2500 && !HasFailure(); ++i) {
    const DatiCircolare z = RandomSection(random, i % 3 != 0);
    const RisultatiCircolare r = Results(z);
    ASSERT_EQ(r.esito, EsitoC::Fatto);
    const ElasticState state = Solve(Strips(z), z.M);
    if (HoleCompressed(z, state.axis) || HoleCompressed(z, r.asse)) continue;
    ++compared;
    if (std::fabs(state.axis - z.D / 2) < z.Di / 2) ++cut;
    SCOPED_TRACE("section " + std::to_string(i));
    ExpectEquilibrium(z, r, state);
  }
  EXPECT_GT(compared, 2000);
  EXPECT_GT(cut, 600);
}

const DatiCircolare kAnnular{60, 40, 20, 50, 12, 46, 3, 3, 3, 57, 1e6};

TEST(SectionCircular, OutcomesOfBadData) {
  const auto with = [](double DatiCircolare::*datum, double value) {
    DatiCircolare z = kAnnular;
    z.*datum = value;
    return Results(z).esito;
  };
  EXPECT_EQ(with(&DatiCircolare::D, 0), EsitoC::GeometriaErrata);
  EXPECT_EQ(with(&DatiCircolare::Di, -1), EsitoC::GeometriaErrata);
  EXPECT_EQ(with(&DatiCircolare::Di, 60), EsitoC::GeometriaErrata);
  for (double DatiCircolare::*ring : {&DatiCircolare::Dd1, &DatiCircolare::Dd2}) {
    for (const double good : {58.0, 38.0})  // up to 2 cm inside the hole
      EXPECT_EQ(with(ring, good), EsitoC::Fatto) << good;
    for (const double bad : {58.01, 37.99})
      EXPECT_EQ(with(ring, bad), EsitoC::ArmaturaErrata) << bad;
    DatiCircolare solid = kAnnular;
    solid.Di = 0, solid.*ring = -1;
    EXPECT_EQ(Results(solid).esito, EsitoC::ArmaturaErrata);
  }
  for (double DatiCircolare::*group : {&DatiCircolare::d1, &DatiCircolare::d2}) {
    for (const double good : {8.0, 52.0, 58.0}) EXPECT_EQ(with(group, good), EsitoC::Fatto) << good;
    for (const double bad : {1.99, 58.01, 8.01, 51.99})
      EXPECT_EQ(with(group, bad), EsitoC::ArmaturaErrata) << bad;
  }
  EXPECT_EQ(Results({.D = 60, .Dd1 = 50, .M = 1e6}).esito, EsitoC::SenzaArmatura);
  // Reinforcement is looked at before its sum.
  EXPECT_EQ(Results({.D = 60, .Dd1 = 59, .M = 1e6}).esito, EsitoC::ArmaturaErrata);
  // A solid section has room for a group anywhere.
  EXPECT_EQ(Results({.D = 60, .Ac1 = 5, .d1 = 30, .M = 1e6}).esito, EsitoC::Fatto);
  // A thin wall refuses groups that are not there.
  EXPECT_EQ(Results({60, 57, 20, 58, 0, 0, 0, 0, 0, 0, 1e6}).esito, EsitoC::ArmaturaErrata);
  EXPECT_EQ(Results({60, 56, 20, 58, 0, 0, 0, 0, 0, 0, 1e6}).esito, EsitoC::Fatto);
}

TEST(SectionCircular, ASecondGroupAloneIsNotTurnedOver) {
  // Group 2 at 57, no group 1: under a negative moment it counts at 57 of the section turned over,
  // which is the stretched side.
  const RisultatiCircolare r = Results({60, 0, 20, 50, 0, 0, 0, 0, 5, 57, -1e6});
  const RisultatiCircolare other = Results({60, 0, 20, 50, 0, 0, 0, 0, 5, 57, 1e6});
  EXPECT_EQ(r.acciaio[Gruppo1], other.acciaio[Gruppo2]);
  EXPECT_GT(r.acciaio[Gruppo1], 0);
  EXPECT_EQ(r.acciaio[Gruppo2], 0);
  EXPECT_NEAR(r.asse, 60 - other.asse, 1e-12);
}

TEST(SectionCircular, WhatOutlivesACalculation) {
  RisultatiCircolare r;
  VerificaSezioneCircolare({60, 0, 20, 50, 0, 0, 5, 3, 2, 50, 1e6}, r);
  const double before = r.minimo;
  EXPECT_LT(before, 0);
  VerificaSezioneCircolare({60, 0, 0, 0, 0, 0, 0, 0, 5, 57, 1e6}, r);  // nothing is compressed
  EXPECT_EQ(r.minimo, before);
  EXPECT_EQ(r.posMassimo, 6);
  VerificaSezioneCircolare({60, 0, 20, 50, 0, 0, 0, 0, 0, 0, 0}, r);
  EXPECT_EQ(r, RisultatiCircolare{});
}

// The expressions themselves, worked by hand for D 60, Di 20, t = 2 Pi / 3 (cos t = -0.5), no
// steel: they are those of the full circle, then Pi x 400 x (-0.5) x 60 / 4 = -9424.77796 is added
// to the first moment; Pi x 10000 / 64 = 490.873852 is taken from the second one and Pi x 100 x (15
// + 15)^2 = 282743.339 added.
TEST(SectionCircular, ExpressionsOfTheWhollyCompressedHole) {
  DatiCircolare z{.D = 60, .Di = 20};
  const double t = 2 * pi / 3;
  EXPECT_NEAR(MomentoStaticoCoronaOltre(t, z) - MomentoStaticoCerchio(t, z), -9424.77796, 1e-4);
  EXPECT_NEAR(MomentoInerziaCoronaOltre(t, z) - MomentoInerziaCerchio(t, z), 282743.3388 - 490.8739,
              1e-3);
  // Much steel low down draws the axis below the hole: the check goes by them.
  z.Ac2 = 180, z.d2 = 57, z.M = 1e6;
  const RisultatiCircolare r = Results(z);
  ASSERT_GT(r.asse, 40);
  const double axis = std::acos(1 - r.asse / 30);
  EXPECT_NEAR(r.clsSup, -1e6 * r.asse / MomentoInerziaCoronaOltre(axis, z), 1e-9);
  EXPECT_LT(MomentoStaticoCoronaOltre(axis - pi / 64800, z), 0);
  EXPECT_GT(MomentoStaticoCoronaOltre(axis + pi / 64800, z), 0);
}

TEST(SectionCircular, AnyMeasuresComeToAnEnd) {
  for (const double Di : {40.0, 0.0}) {
    DatiCircolare good = kAnnular;
    good.Di = Di;
    test::ExpectAnEndForAnyMeasures<RisultatiCircolare>(
        good,
        [](DatiCircolare& z) {
          return std::vector{&z.D,   &z.Di, &z.Ad1, &z.Dd1, &z.Ad2, &z.Dd2,
                             &z.Ac1, &z.d1, &z.Ac2, &z.d2,  &z.M};
        },
        VerificaSezioneCircolare);
  }
}

}  // namespace
}  // namespace orm
