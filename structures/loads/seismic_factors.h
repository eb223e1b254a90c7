// The vertical seismic action on cantilevers and balconies.
#pragma once

#include "structures/loads/loads.h"

namespace orm {

// Share of the weights that acts vertically on projecting elements (D.M. 16-1-1996, rules for
// buildings in seismic zones).
inline constexpr double kAzioneVerticale = 0.4;

// Both 0 outside seismic zones, so that every factor drops out.
struct FattoriSismici {
  double kv = 0;  // by which weights grow (or those that hold down fall)
  double s = 0;   // by which service loads count in it
};

constexpr FattoriSismici FattoriPer(const CoefficientiSismici& coefficienti) {
  return {coefficienti.I * kAzioneVerticale, coefficienti.s};
}

}  // namespace orm
