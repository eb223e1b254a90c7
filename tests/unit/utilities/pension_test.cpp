// The pension estimate, against figures of an independent calculation in exact fractions.
#include "utilities/pension.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

namespace orm {
namespace {

double Pensione(double medio, int anni, int giorni, double prima = 0) {
  PensioneDelReddito(medio, anni, giorni, prima);
  return prima;
}

// From 20 to 68 million, three more each year.
RedditiAnnui Crescenti() {
  RedditiAnnui redditi{};
  for (std::size_t i = 0; i < redditi.size(); ++i) redditi[i] = 20e6 + 3e6 * static_cast<double>(i);
  return redditi;
}

constexpr RedditiAnnui kMisti{40e6, 10e6,      50e6, 55e6, 30e6, 61e6, 62e6,  5e6,    70e6,
                              71e6, 109899999, 90e6, 95e6, 99e6, 8e6,  100e6, 131.6e6};

struct Caso {
  RedditiAnnui redditi;
  int anni, giorni;
  double medio, pensione;
};

TEST(Pension, YearsOfContribution) {
  RedditiAnnui uguali;
  uguali.fill(60e6);
  const Caso casi[] = {
      {Crescenti(), 5, 0, 46438300, 4643830},
      {Crescenti(), 11, 120, 51661718.18181818, 11709645},
      {Crescenti(), 12, 0, 52307658.333333336, 12553838},
      {Crescenti(), 16, 200, 58472525.0, 19360253},
      {Crescenti(), 17, 0, 59811991.666666664, 20336077},
      {Crescenti(), 20, 364, 59811991.666666664, 25133118},
      {kMisti, 5, 0, 66495300.0, 6649530},
      {kMisti, 11, 0, 75226563.529, 16300176},
      {kMisti, 12, 0, 77365183.23491667, 18220855},
      {kMisti, 14, 0, 92518349.90158333, 24885332},
      {kMisti, 16, 0, 97008266.56825, 29668821},
      {kMisti, 17, 0, 101131266.56825, 32721679},
      {uguali, 17, 0, 90003260.0, 29486767},
      {uguali, 20, 100, 90003260.0, 35171750},
  };
  for (const Caso& caso : casi) {
    EXPECT_NEAR(RedditoMedio(caso.redditi, caso.anni), caso.medio, 1e-6) << caso.anni;
    EXPECT_EQ(Pensione(RedditoMedio(caso.redditi, caso.anni), caso.anni, caso.giorni),
              caso.pensione)
        << caso.anni;
  }
}

// Products that are whole in exact fractions may fall a hair below in doubles, and are cut: those
// figures are one Lira lower than by hand (30,027,750, 76,037,500, 94,469,600).
TEST(Pension, EachBand) {
  EXPECT_EQ(Pensione(50000000, 30, 10), 30027749);
  EXPECT_EQ(Pensione(67400000, 30, 10), 40477407);
  EXPECT_EQ(Pensione(90000000, 30, 10), 52081942);
  EXPECT_EQ(Pensione(110000000, 30, 10), 61628372);
  EXPECT_EQ(Pensione(118400000, 35, 0), 76037499);
  EXPECT_EQ(Pensione(125000000, 35, 180), 79794092);
  EXPECT_EQ(Pensione(135000000, 40, 0), 94469599);
}

TEST(Pension, AMeanInNoRangeKeepsThePensionBefore) {
  for (const double medio : {67400000.5, 101400000.5, 118400000.25, 135000000.5, 200000000.0})
    EXPECT_EQ(Pensione(medio, 30, 0, 12345), 12345) << medio;
  EXPECT_NE(Pensione(67400001, 30, 0, 12345), 12345);
}

TEST(Pension, TheCapOf1994TakesTheYearBefore) {
  RedditiAnnui redditi{};
  redditi[10] = 109899999;
  const double sotto = RedditoMedio(redditi, 11) * 11;
  redditi[10] = 109900000;
  const double sopra = RedditoMedio(redditi, 11) * 11;
  EXPECT_NEAR(sotto, 109899999 * 1.181, 1e-6);
  EXPECT_NEAR(sopra, 105500000 * 1.181, 1e-6);
}

// However the ordering is cut short, the twelve that count are the best of the years looked at.
TEST(Pension, TheBestTwelveOfTheYearsSeen) {
  std::mt19937 caso(2001);
  std::uniform_int_distribution<int> reddito(0, 50);
  for (int prova = 0; prova < 500; ++prova) {
    RedditiAnnui redditi{};
    for (double& r : redditi) r = 1e6 * reddito(caso);
    const int anni = 12 + prova % 8;
    const auto visti = static_cast<std::size_t>(std::min(anni, kAnniReddito));
    std::vector<double> rivalutati;
    for (std::size_t i = 0; i < visti; ++i)
      rivalutati.push_back(redditi[i] * kMassimaliReddito[i].rivalutazione);
    std::sort(rivalutati.begin(), rivalutati.end(), std::greater<>());
    double somma = 0;
    for (std::size_t i = 0; i < 12; ++i) somma += rivalutati[i];
    EXPECT_NEAR(RedditoMedio(redditi, anni), somma / 12, 1e-6);
  }
}

}  // namespace
}  // namespace orm
