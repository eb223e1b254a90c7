// Allowed stresses of building stones.
#pragma once

#include <array>

namespace orm {

// Least, most and usual value, kg/cmq.
struct CampoTensione {
  double minimo, massimo, usuale;
};

struct Pietra {
  const char* nome;
  CampoTensione sigma, tau;  // bending, shear
};

// Customary values of Italian handbooks of building, to be weighed for the stone at hand.
inline constexpr std::array<Pietra, 6> kPietre = {{
    {"GRANITO", {10, 20, 15}, {7, 14, 10}},
    {"PORFIDO", {15, 25, 20}, {10, 18, 13}},
    {"CALCARE ", {7, 15, 10}, {5, 10, 7}},
    {"ARENARIA", {3, 10, 6}, {2, 6, 4}},
    {"MARMO", {8, 18, 12}, {5, 12, 8}},
    {"SERPENTINO", {15, 28, 20}, {10, 18, 13}},
}};
inline constexpr const char* kAltraPietra = "ALTRO TIPO";

// The shear stress that goes with a bending stress: both move in proportion from the least to the
// usual value, and from there to the greatest.
constexpr double TauDiPietra(const Pietra& pietra, double sigma) {
  const CampoTensione &s = pietra.sigma, &t = pietra.tau;
  if (sigma <= s.usuale)
    return t.minimo + (sigma - s.minimo) * (t.usuale - t.minimo) / (s.usuale - s.minimo);
  return t.usuale + (sigma - s.usuale) * (t.massimo - t.usuale) / (s.massimo - s.usuale);
}

}  // namespace orm
