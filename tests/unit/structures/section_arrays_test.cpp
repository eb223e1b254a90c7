// MassimoMinimoVettore and OrdinaArray.
#include "structures/solvers/arrays.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

namespace orm {
namespace {

struct Extremes {
  double massimo = 111, minimo = 222;
  int posMassimo = 33, posMinimo = 44;
};

Extremes Of(std::vector<double> values) {
  Extremes e;
  MassimoMinimoVettore(values, e.massimo, e.minimo, e.posMassimo, e.posMinimo);
  return e;
}

TEST(MassimoMinimoVettore, GivesTheExtremesAndTheirLastPositions) {
  const Extremes e = Of({-3, 5, 0, -7, 5, -7, 2});
  EXPECT_EQ(e.massimo, 5);
  EXPECT_EQ(e.minimo, -7);
  EXPECT_EQ(e.posMassimo, 5);
  EXPECT_EQ(e.posMinimo, 6);
}

TEST(MassimoMinimoVettore, LeavesTheOutputOfAnEmptyGroup) {
  const Extremes positive = Of({1, 4, 0});
  EXPECT_EQ(positive.minimo, 222);
  EXPECT_EQ(positive.posMinimo, 44);
  const Extremes negative = Of({-1, -4});
  EXPECT_EQ(negative.massimo, 111);
  EXPECT_EQ(negative.posMassimo, 33);
  EXPECT_EQ(negative.minimo, -4);
}

TEST(MassimoMinimoVettore, ZeroCountsAsNotNegative) {
  const Extremes e = Of({0, -2, 0});
  EXPECT_EQ(e.massimo, 0);
  EXPECT_EQ(e.posMassimo, 3);
  EXPECT_EQ(e.minimo, -2);
}

TEST(OrdinaArray, SortsPairsTogether) {
  std::mt19937 random(3);
  for (int round = 0; round < 2000; ++round) {
    const auto size = random() % 12;
    std::vector<double> keys, mates;
    std::vector<std::pair<double, double>> pairs;
    for (std::size_t i = 0; i < size; ++i) {
      keys.push_back(static_cast<double>(random() % 6));
      mates.push_back(static_cast<double>(i));
      pairs.emplace_back(keys[i], mates[i]);
    }
    OrdinaArray(keys, mates, 0, static_cast<int>(size) - 1);
    EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end()));
    std::vector<std::pair<double, double>> sorted;
    for (std::size_t i = 0; i < size; ++i) sorted.emplace_back(keys[i], mates[i]);
    std::sort(sorted.begin(), sorted.end());
    std::sort(pairs.begin(), pairs.end());
    EXPECT_EQ(sorted, pairs);
  }
}

TEST(OrdinaArray, LeavesWhatLiesOutsideTheLimits) {
  std::vector<double> keys{9, 5, 3, 4, 0}, mates{1, 2, 3, 4, 5};
  OrdinaArray(keys, mates, 1, 3);
  EXPECT_EQ(keys, (std::vector<double>{9, 3, 4, 5, 0}));
  EXPECT_EQ(mates, (std::vector<double>{1, 3, 4, 2, 5}));
  OrdinaArray(keys, mates, 3, 1);
  EXPECT_EQ(keys[0], 9);
}

}  // namespace
}  // namespace orm
