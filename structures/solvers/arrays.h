// Two routines on short vectors that the structural checks share.
#pragma once

#include <span>

namespace orm {

// Extremes of `valori`, whose positions count from 1. `massimo` is the largest of the values not
// below 0, `minimo` the most negative one; a group without values leaves its output as it was.
// `posMassimo` and `posMinimo` are the last positions whose value equals `massimo` and `minimo` as
// they then stand, and stay as they were when there is none.
void MassimoMinimoVettore(std::span<const double> valori, double& massimo, double& minimo,
                          int& posMassimo, int& posMinimo);

// Sorts `chiavi` ascending from position `da` to position `a`, both included and counted from 0;
// `compagni` takes part in each exchange.
void OrdinaArray(std::span<double> chiavi, std::span<double> compagni, int da, int a);

}  // namespace orm
