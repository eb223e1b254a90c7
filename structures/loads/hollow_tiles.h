// The hollow tiles of floors with steel beams: customary sizes of the makers, and the weight that
// goes with each height.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "structures/loads/loads.h"

namespace orm {

inline constexpr const char* kNotaTavelloni =
    "I tipi di tavelloni sono individuati da Lunhezza x Altezza";

inline constexpr std::array<double, 8> kLunghezzeTavelloni = {50, 60, 70, 80, 90, 100, 110, 120};

struct PesoTavellone {
  double altezza;  // cm
  double peso;     // kg/mq
};
inline constexpr std::array<PesoTavellone, 5> kPesiTavelloni = {
    {{3, 25}, {4, 30}, {6, 39}, {8, 43}, {10, 49}}};

// All tiles in the order of the lists: by length, then by height.
std::vector<Tavellone> TuttiITavelloni();
std::string NomeTavellone(const Tavellone& tavellone);  // "50 x 3"
std::vector<std::string> NomiTavelloni();
// The tile at that place of the lists; a place that they do not have is no tile, of sizes 0.
Tavellone TavelloneDiLista(int indice);

}  // namespace orm
