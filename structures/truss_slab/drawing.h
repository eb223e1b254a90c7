// Drawings of the truss-joist slab: the scheme of what is given, and the bars of a design.
#pragma once

#include "dialogs/lavagna.h"
#include "structures/truss_slab/truss_slab.h"

namespace orm {

inline constexpr double kLarghezzaDisegno = 138, kAltezzaDisegno = 30;
inline constexpr int kPuntiDisegno = 926;  // pixels wide at 100 %

void DisegnaSchemaSolaio(Lavagna& lavagna);

// Lengths to scale across, the longest bar as wide as the panel; nothing to scale upward.
void DisegnaArmatureSolaio(Lavagna& lavagna, const DatiSolaioT& dati,
                           const RisultatiSolaioT& risultati);

}  // namespace orm
