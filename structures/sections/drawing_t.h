// Drawings of frmVER_FLESS_T1: the schematic of a shape and the verified section to scale.
#pragma once

#include <vector>

#include "dialogs/lavagna.h"
#include "structures/sections/bending_picture.h"
#include "structures/sections/shapes_t.h"
#include "structures/solvers/section_t.h"

namespace orm {

// A fixed outline with the names of its measures and the places of the eight layers.
void DisegnaSchemaT(Lavagna& lavagna, const FormaT& forma);

void DisegnaSezioneT(Lavagna& lavagna, const DatiSezione& z, const RisultatiSezione& risultati,
                     const TensioniAmmissibili& ammesse, bool verificata);

// Outline of a section, clockwise from its upper left corner: x from the left edge of the box
// around it, y as depth, cm. 4 vertices for a rectangle, 8 with one flange, 12 with two.
std::vector<Point> ContornoT(const DatiSezione& z);

}  // namespace orm
