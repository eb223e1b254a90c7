// Cantilever of NP beams and hollow tiles, with loads at its edge and the vertical seismic action.
#pragma once

#include "structures/loads/seismic_factors.h"
#include "structures/steel_beams/beams.h"

namespace orm {

struct DatiSbalzoP : DatiPutrelle {
  double caricoEstremo = 0;  // along the edge, kg/ml
  double coppiaEstrema = 0;  // along the edge, kg x m/ml
  FattoriSismici sisma;
};

// Shear and moment at the wall and the stresses there. The couple at the edge has no seismic part.
VerificaPutrella VerificaSbalzoP(const DatiSbalzoP& dati);

}  // namespace orm
