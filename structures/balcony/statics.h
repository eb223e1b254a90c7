// The stone balcony by plain statics: how far the customary formulas of the check fall short of it.
#pragma once

#include <string>

#include "structures/balcony/balcony.h"

namespace orm {

// The same loads put where they stand: weight and service load over the slab, the line load along
// the front and along both sides, everything times its seismic factor.
Sforzi StaticaLastra(const DatiBalcone& dati);  // the greatest in a slab on beams or brackets
Sforzi StaticaAlMuro(const DatiBalcone& dati);  // of one beam, of one bracket, of the slab alone

// Each stress as statics has it over the stress of the check, above 1 where the check is on the
// unsafe side; 0 for parts that the kind lacks. Rectangles have 3/2 of the mean shear stress, the
// wall a pressure that goes straight from one end of the bearing to the other.
RisultatiBalcone StaticaSuVerifica(const DatiBalcone& dati);

}  // namespace orm
