// Drawing of a stone balcony: section through a bracket, and plan.
#pragma once

#include "dialogs/lavagna.h"
#include "structures/balcony/balcony.h"

namespace orm {

inline constexpr double kLarghezzaBalcone = 110, kAltezzaBalcone = 48;  // units of the panel
inline constexpr int kPuntiBalcone = 530;                               // pixels wide at 100 %

// Measures to scale, except that none vanishes beside the others, with their values below. As long
// as the measures are not those of a balcony, a scheme of the kind that tells what the letters
// mean.
void DisegnaBalcone(Lavagna& lavagna, const DatiBalcone& dati);

}  // namespace orm
