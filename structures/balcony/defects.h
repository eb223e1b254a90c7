// Measures that no balcony has.
#pragma once

#include <string>

#include "structures/balcony/balcony.h"

namespace orm {

// What is wrong with the measures, in two lines: the part and the reason; empty when nothing is. Of
// several faults the first in the order of the fields.
std::string DifettoBalcone(const DatiBalcone& dati);

// That first fault is an end thicker than the root.
bool RastremazioneInversa(const DatiBalcone& dati);

}  // namespace orm
