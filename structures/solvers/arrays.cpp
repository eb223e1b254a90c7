#include "structures/solvers/arrays.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace orm {

void MassimoMinimoVettore(std::span<const double> valori, double& massimo, double& minimo,
                          int& posMassimo, int& posMinimo) {
  std::optional<double> largest, lowest;
  for (const double v : valori) {
    if (v >= 0) largest = std::max(v, largest.value_or(v));
    if (v < 0) lowest = std::min(v, lowest.value_or(v));
  }
  massimo = largest.value_or(massimo);
  minimo = lowest.value_or(minimo);
  for (std::size_t i = 0; i < valori.size(); ++i) {
    if (valori[i] == massimo) posMassimo = static_cast<int>(i) + 1;
    if (valori[i] == minimo) posMinimo = static_cast<int>(i) + 1;
  }
}

void OrdinaArray(std::span<double> chiavi, std::span<double> compagni, int da, int a) {
  if (da >= a) return;
  const auto key = [&](int i) { return chiavi[static_cast<std::size_t>(i)]; };
  const auto exchange = [&](int i, int j) {
    std::swap(chiavi[static_cast<std::size_t>(i)], chiavi[static_cast<std::size_t>(j)]);
    std::swap(compagni[static_cast<std::size_t>(i)], compagni[static_cast<std::size_t>(j)]);
  };
  if (a - da == 1) {
    if (key(da) > key(a)) exchange(da, a);
    return;
  }
  exchange((da + a) / 2, a);
  const double pivot = key(a);
  int low = da, high = a;
  while (low < high) {
    while (low < high && key(low) <= pivot) ++low;
    while (low < high && key(high) >= pivot) --high;
    if (low < high) exchange(low, high);
  }
  exchange(high, a);
  OrdinaArray(chiavi, compagni, da, high - 1);
  OrdinaArray(chiavi, compagni, high + 1, a);
}

}  // namespace orm
