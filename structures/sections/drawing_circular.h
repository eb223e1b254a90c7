// Drawings of frmVER_FLESS_C1: the schematic and the verified section to scale.
#pragma once

#include <array>
#include <vector>

#include "dialogs/bars.h"
#include "dialogs/lavagna.h"
#include "structures/sections/bending_picture.h"
#include "structures/solvers/section_circular.h"

namespace orm {

// The circles that the fields measure, with their names; the inner edge where there is a hole.
void DisegnaSchemaC(Lavagna& lavagna, bool anulare);

using FerriAnelli = std::array<std::vector<BarGroup>, 2>;  // the bars of the two rings

void DisegnaSezioneC(Lavagna& lavagna, const DatiCircolare& z, const RisultatiCircolare& risultati,
                     const FerriAnelli& ferri, const TensioniAmmissibili& ammesse, bool verificata);

}  // namespace orm
