// MassimoMinimoVettore and OrdinaArray.
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <tuple>
#include <vector>

#include "structures/solvers/arrays.h"

namespace orm {
namespace {

// Greatest, least, their positions; what stood there before is 111, 222, 33, 44.
std::tuple<double, double, int, int> Extremes(std::vector<double> values) {
  std::tuple<double, double, int, int> e{111, 222, 33, 44};
  MassimoMinimoVettore(values, std::get<0>(e), std::get<1>(e), std::get<2>(e), std::get<3>(e));
  return e;
}

TEST(MassimoMinimoVettore, GivesTheExtremesAndTheirLastPositions) {
  EXPECT_EQ(Extremes({-3, 5, 0, -7, 5, -7, 2}), std::tuple(5.0, -7.0, 5, 6));
  EXPECT_EQ(Extremes({0, -2, 0}), std::tuple(0.0, -2.0, 3, 2));
  EXPECT_EQ(Extremes({1, 4, 0}), std::tuple(4.0, 222.0, 2, 44));
  EXPECT_EQ(Extremes({-1, -4}), std::tuple(111.0, -4.0, 33, 2));
}

TEST(OrdinaArray, SortsPairsBetweenItsLimits) {
  std::mt19937 random(3);
  for (int round = 0; round < 2000; ++round) {
    std::vector<double> keys(random() % 12), mates(keys.size());
    for (double& key : keys) key = static_cast<double>(random() % 6);
    std::iota(mates.begin(), mates.end(), 0);
    const auto before = keys, all = mates;
    const int from = static_cast<int>(random() % (keys.size() + 1));
    const int to = from - 1 + static_cast<int>(random() % (keys.size() - from + 1));
    OrdinaArray(keys, mates, from, to);
    EXPECT_TRUE(std::is_sorted(keys.begin() + from, keys.begin() + (to + 1)));
    for (std::size_t i = 0; i < keys.size(); ++i) {
      EXPECT_EQ(keys[i], before[static_cast<std::size_t>(mates[i])]);
      if (static_cast<int>(i) < from || static_cast<int>(i) > to) {
        EXPECT_EQ(mates[i], all[i]);
      }
    }
    std::sort(mates.begin(), mates.end());
    EXPECT_EQ(mates, all);
  }
}

}  // namespace
}  // namespace orm
