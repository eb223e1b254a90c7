// An elastic cracked section solved without any formula of the program: the concrete is cut into
// fine strips, plane sections stay plane, concrete takes no tension, steel is 15 times stiffer.
// The axis is where the forces balance, the curvature is what carries the moment.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <limits>
#include <random>
#include <vector>

namespace orm::test {

struct Strip {
  double top, bottom, width;  // depths from the upper edge
};
struct Bar {
  double depth, area;
};

struct ElasticSection {
  double height = 0;
  std::vector<Strip> concrete;  // subtracting strips have a negative width
  std::vector<Bar> steel;

  void AddBand(double top, double bottom, double width, int strips) {
    const double step = (bottom - top) / strips;
    for (int i = 0; i < strips; ++i)
      concrete.push_back({top + i * step, top + (i + 1) * step, width});
  }
};

struct ElasticState {
  double axis = 0;       // from the upper edge
  double curvature = 0;  // stress of concrete a cm from the axis, with the sign of the moment
  double ConcreteAt(double depth) const { return std::fmin(0.0, curvature * (depth - axis)); }
  double SteelAt(double depth) const { return 15 * curvature * (depth - axis); }
};

struct Resultant {
  double force = 0, moment = 0;  // for a curvature of 1, about the axis
};

inline Resultant Sum(const ElasticSection& section, double axis) {
  Resultant sum;
  for (const Strip& strip : section.concrete) {
    const double bottom = std::fmin(strip.bottom, axis);
    if (bottom <= strip.top) continue;
    const double lever = (strip.top + bottom) / 2 - axis;
    const double force = lever * (bottom - strip.top) * strip.width;
    sum.force += force;
    sum.moment += force * lever + strip.width * std::pow(bottom - strip.top, 3) / 12;
  }
  for (const Bar& bar : section.steel) {
    const double force = 15 * bar.area * (bar.depth - axis);
    sum.force += force;
    sum.moment += force * (bar.depth - axis);
  }
  return sum;
}

// The compressed edge is the upper one for a positive moment, the lower one for a negative moment.
inline ElasticState Solve(ElasticSection section, double moment) {
  if (moment < 0) {
    const double H = section.height;
    for (Strip& strip : section.concrete) strip = {H - strip.bottom, H - strip.top, strip.width};
    for (Bar& bar : section.steel) bar.depth = H - bar.depth;
    const ElasticState state = Solve(section, -moment);
    return {H - state.axis, -state.curvature};
  }
  double above = 0, below = section.height;
  for (int i = 0; i < 48; ++i) {
    const double axis = (above + below) / 2;
    (Sum(section, axis).force > 0 ? above : below) = axis;
  }
  const double axis = (above + below) / 2;
  return {axis, moment / Sum(section, axis).moment};
}

inline double Between(std::mt19937& random, double least, double most) {
  return std::uniform_real_distribution<double>(least, most)(random);
}

// Whatever is typed, a check comes to an end with finite results; a datum that is no finite number
// is bad geometry. `fields` gives the numbers of a section.
template <class Results, class Data, class Fields, class Check>
void ExpectAnEndForAnyMeasures(const Data& good, const Fields& fields, const Check& check) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double extremes[] = {0,      -0.0, 1e-320, 1e-200,    1e-9,     0.001,     1,
                             2,      1e13, 1e16,   1e100,     1e200,    1e308,     1.7e308,
                             -1e300, -1,   30,     2.0000001, infinity, -infinity, std::nan("")};
  std::mt19937 random(7);
  for (int i = 0; i < 60000; ++i) {
    Data data = good;
    const auto numbers = fields(data);
    const std::size_t changes = 1 + random() % 6;
    double extreme = 0;
    for (std::size_t k = 0; k < changes; ++k)
      *numbers[random() % numbers.size()] = extreme = extremes[random() % std::size(extremes)];
    Results r;
    check(data, r);
    for (const double value : {r.asse, r.clsSup, r.clsInf, r.massimo, r.minimo})
      ASSERT_TRUE(std::isfinite(value));
    for (const double value : r.acciaio) ASSERT_TRUE(std::isfinite(value));
    if (changes == 1 && !std::isfinite(extreme)) {
      ASSERT_EQ(static_cast<int>(r.esito), 1);
    }
  }
}

}  // namespace orm::test
