// Drawings of the truss-joist slab: the scheme of what is given, and the bars of a design.
#pragma once

#include "dialogs/lavagna.h"
#include "structures/truss_slab.h"

namespace orm {

inline constexpr double kLarghezzaDisegno = 90, kAltezzaDisegno = 32;

void DisegnaSchemaSolaio(Lavagna& lavagna);

// Lengths across to scale, as long as a bar is not longer than the panel has room for.
void DisegnaArmatureSolaio(Lavagna& lavagna, const DatiSolaioT& dati,
                           const RisultatiSolaioT& risultati);

}  // namespace orm
