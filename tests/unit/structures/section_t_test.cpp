// VerificaSezioneT against equilibrium on strips, closed formulas, and its own stated oddities.
#include "structures/solvers/section_t.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "tests/unit/structures/section_oracle.h"

namespace orm {
namespace {

using test::ElasticSection;
using test::ElasticState;

constexpr double kAxisTolerance = 0.0005;  // half of the last interval of the search

DatiSezione Section(double B, double b, double Bi, double H, double s, double si,
                    std::vector<StratoT> layers, double M) {
  DatiSezione dati{};
  const double geometry[] = {B, b, Bi, H, s, si};
  std::copy(std::begin(geometry), std::end(geometry), dati.begin() + 1);
  for (std::size_t i = 0; i < layers.size(); ++i) {
    dati[7 + 2 * i] = layers[i].A;
    dati[8 + 2 * i] = layers[i].d;
  }
  dati[23] = M;
  return dati;
}

DatiSezione Rectangle(double b, double H, std::vector<StratoT> layers, double M) {
  return Section(b, b, b, H, 0, 0, std::move(layers), M);
}

RisultatiSezione Results(const DatiSezione& dati) {
  RisultatiSezione risultati{};
  VerificaSezioneT(dati, risultati);
  return risultati;
}

EsitoT OutcomeOf(const DatiSezione& dati) { return Esito(Results(dati)); }

ElasticSection Strips(const DatiSezione& dati) {
  ElasticSection section;
  const double H = dati[4], s = dati[5], si = dati[6];
  section.height = H;
  if (s > 0) section.AddBand(0, s, dati[1], 150);
  section.AddBand(s, H - si, dati[2], 500);
  if (si > 0) section.AddBand(H - si, H, dati[3], 150);
  for (std::size_t i = 0; i < 8; ++i)
    if (dati[7 + 2 * i] > 0) section.steel.push_back({dati[8 + 2 * i], dati[7 + 2 * i]});
  return section;
}

// Any of the four shapes, one to eight layers in any order, either sign; flanges may be narrower
// than the web.
DatiSezione RandomSection(std::mt19937& random) {
  const auto between = [&](double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(random);
  };
  const int shape = std::uniform_int_distribution<int>(0, 3)(random);
  const double H = between(12, 200), b = between(5, 60);
  const bool upper = shape == 1 || shape == 3, lower = shape == 2 || shape == 3;
  DatiSezione dati = Section(upper ? between(5, 250) : b, b, lower ? between(5, 250) : b, H,
                             upper ? between(2, H * 0.45) : 0, lower ? between(2, H * 0.45) : 0, {},
                             between(1e4, 1e7) * (random() % 2 == 0 ? 1 : -1));
  const int layers = std::uniform_int_distribution<int>(1, 8)(random);
  for (int i = 0; i < layers; ++i) {
    const auto slot = static_cast<std::size_t>(random() % 8);
    dati[7 + 2 * slot] = between(0.3, 40);
    dati[8 + 2 * slot] = between(2, H - 2);
  }
  return dati;
}

std::vector<DatiSezione> RandomSections(int count) {
  std::mt19937 random(20020315);
  std::vector<DatiSezione> sections;
  for (int i = 0; i < count; ++i) sections.push_back(RandomSection(random));
  return sections;
}

void ExpectEquilibrium(const DatiSezione& dati, const RisultatiSezione& r) {
  const ElasticState state = Solve(Strips(dati), dati[23]);
  const double perCm = std::fabs(state.curvature);
  const double tolerance = perCm * kAxisTolerance * 1.01;
  EXPECT_NEAR(r[1], state.axis, kAxisTolerance * 1.01);
  EXPECT_NEAR(r[2], state.ConcreteAt(0), tolerance);
  EXPECT_NEAR(r[3], state.ConcreteAt(dati[4]), tolerance);
  double greatest = 0, least = 0;
  for (std::size_t i = 0; i < 8; ++i) {
    const double expected = dati[7 + 2 * i] > 0 ? state.SteelAt(dati[8 + 2 * i]) : 0;
    EXPECT_NEAR(r[4 + i], expected, 15 * tolerance + 1e-6 * std::fabs(expected));
    greatest = std::max(greatest, r[4 + i]);
    least = std::min(least, r[4 + i]);
  }
  EXPECT_EQ(r[12], greatest);
  EXPECT_EQ(r[13], least);
}

TEST(SectionT, AgreesWithEquilibriumOnStrips) {
  for (const DatiSezione& dati : RandomSections(6000)) {
    const RisultatiSezione r = Results(dati);
    ASSERT_EQ(Esito(r), EsitoT::Fatto);
    ExpectEquilibrium(dati, r);
    if (HasFailure()) {
      for (std::size_t i = 1; i < dati.size(); ++i) std::cerr << i << ": " << dati[i] << "\n";
      return;
    }
  }
}

TEST(SectionT, ResultDoesNotDependOnWhatWasReckonedBefore) {
  const auto sections = RandomSections(3000);
  std::vector<RisultatiSezione> forward, backward;
  for (const auto& dati : sections) forward.push_back(Results(dati));
  for (auto it = sections.rbegin(); it != sections.rend(); ++it) backward.push_back(Results(*it));
  std::reverse(backward.begin(), backward.end());
  EXPECT_EQ(forward, backward);
}

TEST(SectionT, NegativeMomentIsThePositiveOneOfTheSectionTurnedOver) {
  for (DatiSezione dati : RandomSections(500)) {
    const RisultatiSezione r = Results(dati);
    std::swap(dati[1], dati[3]);
    std::swap(dati[5], dati[6]);
    for (std::size_t i = 8; i <= 22; i += 2)
      if (dati[i] != 0) dati[i] = dati[4] - dati[i];
    dati[23] = -dati[23];
    const RisultatiSezione turned = Results(dati);
    EXPECT_NEAR(r[1], dati[4] - turned[1], 1e-3);
    EXPECT_NEAR(r[2], turned[3], 1e-3 * std::fabs(r[2]) + 1e-9);
  }
}

// Singly reinforced rectangle: x = n A / b (Sqr(1 + 2 b d / (n A)) - 1), concrete 2 M / (b x z),
// steel M / (A z) with z = d - x / 3: the closed formulas of every handbook of the method.
TEST(SectionT, ClosedFormulasOfTheSinglyReinforcedRectangle) {
  // b 30, d 47, A 10, M 5000 kg x m. By hand: n A / b = 5; Sqr(1 + 2 x 47 / 5) = 4.449719;
  // x = 17.248596; z = 41.250468; steel 500000 / 412.50468 = 1212.107; concrete
  // 1000000 / (30 x 17.248596 x 41.250468) = 46.849.
  const RisultatiSezione r = Results(Rectangle(30, 50, {{10, 47}}, 500000));
  EXPECT_NEAR(r[1], 17.248596, kAxisTolerance);
  EXPECT_NEAR(r[2], -46.849, 0.002);
  EXPECT_EQ(r[3], 0);
  EXPECT_NEAR(r[4], 1212.107, 0.03);
  EXPECT_EQ(r[13], 0);
}

// The balanced section of the British code of practice CP 114 (1957) for a modular ratio of 15 and
// 1000 and 20000 lb/sq.in., in the figures that handbooks of its time print: 1.07 % of steel, axis
// at 0.43 d, moment of resistance 184 b d^2. Any consistent units serve; the figures have three
// digits.
TEST(SectionT, BalancedSectionOfThePrintedCode) {
  const double b = 12, d = 20;
  const RisultatiSezione r = Results(Rectangle(b, 23, {{0.0107 * b * d, d}}, 184 * b * d * d));
  EXPECT_NEAR(r[1] / d, 0.43, 0.005);
  EXPECT_NEAR(r[2], -1000, 5);
  EXPECT_NEAR(r[4], 20000, 100);
}

// Doubly reinforced: b x^2 / 2 + n A' (x - d') = n A (d - x), a quadratic equation.
TEST(SectionT, ClosedFormulasOfTheDoublyReinforcedRectangle) {
  // b 40, H 60, A 20 at 56, A' 8 at 4, M 12000 kg x m. By hand: 20 x^2 + 420 x - 17280 = 0,
  // x = (-420 + Sqr(176400 + 1382400)) / 40 = 20.712978; I = 40 x 20.712978^3 / 3 +
  // 300 x 35.287022^2 + 120 x 16.712978^2 = 525556.8; concrete 1200000 x 20.712978 / 525556.8 =
  // 47.294; tension 15 x 1200000 x 35.287022 / 525556.8 = 1208.559; compression 572.409.
  const RisultatiSezione r = Results(Rectangle(40, 60, {{20, 56}, {8, 4}}, 1200000));
  EXPECT_NEAR(r[1], 20.712978, kAxisTolerance);
  EXPECT_NEAR(r[2], -47.294, 0.002);
  EXPECT_NEAR(r[4], 1208.559, 0.03);
  EXPECT_NEAR(r[5], -572.409, 0.03);
}

// T section with the axis in the web: b x^2 / 2 + (B - b) s (x - s / 2) = n A (d - x).
TEST(SectionT, ClosedFormulasOfTheTSectionWithTheAxisInTheWeb) {
  // B 60, b 20, H 70, s 8, A 25 at 65, M 20000 kg x m: 10 x^2 + 695 x - 25655 = 0,
  // x = (-695 + Sqr(483025 + 1026200)) / 20 = 26.675259.
  const RisultatiSezione r = Results(Section(60, 20, 20, 70, 8, 0, {{25, 65}}, 2000000));
  const double x = 26.675259;
  const double I = 60 * x * x * x / 3 - 40 * std::pow(x - 8, 3) / 3 + 375 * std::pow(65 - x, 2);
  EXPECT_NEAR(r[1], x, kAxisTolerance);
  EXPECT_NEAR(r[2], -2000000 * x / I, 0.002);
  EXPECT_NEAR(r[4], 15 * 2000000 * (65 - x) / I, 0.03);
}

TEST(SectionT, OutcomesOfBadData) {
  const DatiSezione good = Section(100, 30, 60, 80, 20, 15, {{6, 3}, {9, 77}}, 7e5);
  ASSERT_EQ(OutcomeOf(good), EsitoT::Fatto);
  const auto with = [&](std::size_t index, double value) {
    DatiSezione dati = good;
    dati[index] = value;
    return OutcomeOf(dati);
  };
  for (const std::size_t index : {1u, 2u, 3u, 4u}) {
    EXPECT_EQ(with(index, 0), EsitoT::GeometriaErrata) << index;
    EXPECT_EQ(with(index, -1), EsitoT::GeometriaErrata) << index;
  }
  EXPECT_EQ(with(5, -0.1), EsitoT::GeometriaErrata);
  EXPECT_EQ(with(6, -0.1), EsitoT::GeometriaErrata);
  EXPECT_EQ(with(5, 65), EsitoT::GeometriaErrata);  // s + si = H
  EXPECT_EQ(with(8, -3), EsitoT::GeometriaErrata);
  EXPECT_EQ(with(9, -9), EsitoT::ArmaturaNegativa);
  EXPECT_EQ(with(8, 78), EsitoT::Fatto);
  EXPECT_EQ(with(8, 78.01), EsitoT::CopriferroErrato);
  EXPECT_EQ(with(8, 2), EsitoT::Fatto);
  EXPECT_EQ(with(8, 1.99), EsitoT::CopriferroErrato);
  EXPECT_EQ(with(8, 0), EsitoT::Fatto);     // on the upper edge: no cover is asked
  EXPECT_EQ(with(12, 500), EsitoT::Fatto);  // a distance without area is ignored
  EXPECT_EQ(OutcomeOf(Rectangle(30, 50, {}, 1e5)), EsitoT::SenzaArmatura);
  // Geometry is looked at before areas, areas before cover.
  EXPECT_EQ(OutcomeOf(Rectangle(0, 50, {{-1, 49}}, 1e5)), EsitoT::GeometriaErrata);
  EXPECT_EQ(OutcomeOf(Rectangle(30, 50, {{-1, 49}}, 1e5)), EsitoT::ArmaturaNegativa);
}

TEST(SectionT, BadDataLeaveTheResultsOfBefore) {
  RisultatiSezione r{};
  VerificaSezioneT(Rectangle(30, 50, {{10, 47}}, 500000), r);
  const RisultatiSezione before = r;
  VerificaSezioneT(Rectangle(30, 50, {{10, 49}}, 500000), r);
  EXPECT_EQ(r[0], 3);
  EXPECT_TRUE(std::equal(r.begin() + 1, r.end(), before.begin() + 1));
}

TEST(SectionT, MomentOfZeroClearsTheResults) {
  RisultatiSezione r;
  r.fill(7);
  VerificaSezioneT(Rectangle(30, 50, {{10, 47}}, 0), r);
  EXPECT_EQ(r, RisultatiSezione{});
}

TEST(SectionT, WhatIsNoFiniteNumberIsBadGeometry) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (std::size_t index = 1; index <= 23; ++index)
    for (const double bad : {std::nan(""), infinity, -infinity}) {
      DatiSezione dati =
          Section(100, 30, 60, 80, 20, 15,
                  {{1, 3}, {1, 9}, {1, 9}, {1, 9}, {1, 9}, {1, 9}, {1, 9}, {9, 77}}, 7e5);
      dati[index] = bad;
      EXPECT_EQ(OutcomeOf(dati), EsitoT::GeometriaErrata) << index << " " << bad;
    }
}

TEST(SectionT, HugeAndTinyMeasuresComeToAnEnd) {
  const double extremes[] = {0,    -0.0, 1e-320, 1e-200, 1e-9,  0.001,   1,      2,  2.0000001,
                             1e13, 1e16, 1e100,  1e200,  1e308, 1.7e308, -1e300, -1, 30};
  std::mt19937 random(7);
  for (int i = 0; i < 60000; ++i) {
    DatiSezione dati = Section(100, 30, 60, 80, 20, 15, {{6, 3}, {9, 77}}, 7e5);
    for (int changes = 1 + static_cast<int>(random() % 6); changes > 0; --changes)
      dati[1 + random() % 23] = extremes[random() % std::size(extremes)];
    const RisultatiSezione r = Results(dati);
    for (const double value : r) ASSERT_TRUE(std::isfinite(value));
  }
}

// Deliberate differences from elastic theory.

TEST(SectionT, AHairBelowTheUpperFlangeTheFormulasOfTheLowerOneHold) {
  const SezioneT z{100, 30, 60, 80, 20, 15, {{{9, 77}}}};
  const auto web = [&](double x) {
    return 30 * x * x / 2 + 70 * 20 * (x - 10) - 15 * 9.0 * (77 - x);
  };
  const double gap = 20 + 5e-10;
  EXPECT_NEAR(MomentoStaticoT(20 + 2e-9, z), web(20 + 2e-9), 1e-6);
  EXPECT_NEAR(MomentoStaticoT(gap, z), web(gap) + 30 * (gap - 65) * (gap - 65) / 2, 1e-6);
  EXPECT_NEAR(MomentoStaticoT(20, z), 100 * 200 - 15 * 9.0 * 57, 1e-6);
}

TEST(SectionT, ALayerOnTheUpperEdgeDoesNotTurnOver) {
  // Under a negative moment it counts at the compressed edge, as the first layer below does.
  const RisultatiSezione r = Results(Rectangle(30, 50, {{5, 0}, {10, 3}}, -400000));
  const ElasticState other = [] {
    ElasticSection section;
    section.height = 50;
    section.AddBand(0, 50, 30, 500);
    section.steel = {{50, 5}, {3, 10}};
    return Solve(section, -400000);
  }();
  EXPECT_NEAR(r[1], other.axis, kAxisTolerance);
  EXPECT_LT(r[4], 0);  // compressed, although the upper edge is stretched
  EXPECT_NEAR(r[4], other.SteelAt(50), 0.1);
}

TEST(SectionT, ElementThirteenOutlivesASectionWithoutCompressedSteel) {
  RisultatiSezione r{};
  VerificaSezioneT(Rectangle(40, 60, {{20, 56}, {8, 4}}, 1200000), r);
  const double before = r[13];
  EXPECT_LT(before, -500);
  VerificaSezioneT(Rectangle(30, 50, {{10, 47}}, 500000), r);
  EXPECT_EQ(r[13], before);
}

TEST(SectionT, DataStayAsTheyWere) {
  const DatiSezione dati = Section(100, 30, 60, 80, 20, 15, {{6, 3}, {0, 40}, {9, 77}}, -7e5);
  const DatiSezione copy = dati;
  Results(dati);
  EXPECT_EQ(dati, copy);
}

}  // namespace
}  // namespace orm
