// An elastic cracked section solved without any formula of the program: the concrete is cut into
// fine strips, plane sections stay plane, concrete takes no tension, steel is 15 times stiffer.
// The axis is where the forces balance, the curvature is what carries the moment.
#pragma once

#include <cmath>
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
    for (int i = 0; i < strips; ++i)
      concrete.push_back(
          {top + (bottom - top) * i / strips, top + (bottom - top) * (i + 1) / strips, width});
  }
};

struct ElasticState {
  double axis = 0;  // from the upper edge
  double curvature =
      0;  // stress of concrete for each cm from the axis, with the sign of the moment
  double ConcreteAt(double depth) const { return std::fmin(0.0, curvature * (depth - axis)); }
  double SteelAt(double depth) const { return 15 * curvature * (depth - axis); }
};

namespace detail {

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

inline ElasticSection Mirrored(ElasticSection section) {
  for (Strip& strip : section.concrete)
    strip = {section.height - strip.bottom, section.height - strip.top, strip.width};
  for (Bar& bar : section.steel) bar.depth = section.height - bar.depth;
  return section;
}

}  // namespace detail

// The compressed edge is the upper one for a positive moment, the lower one for a negative moment.
inline ElasticState Solve(const ElasticSection& section, double moment) {
  if (moment < 0) {
    ElasticState state = Solve(detail::Mirrored(section), -moment);
    return {section.height - state.axis, -state.curvature};
  }
  double above = 0, below = section.height;
  for (int i = 0; i < 48; ++i) {
    const double axis = (above + below) / 2;
    (detail::Sum(section, axis).force > 0 ? above : below) = axis;
  }
  const double axis = (above + below) / 2;
  return {axis, moment / detail::Sum(section, axis).moment};
}

}  // namespace orm::test
