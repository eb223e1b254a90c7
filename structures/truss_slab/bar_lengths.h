// The lengths of a design's bars, each with the steps that led to it.
#pragma once

#include "runtime/explanation/conto.h"
#include "structures/truss_slab/truss_slab.h"

namespace orm {

// One that runs to both supports, where steel of area `A` (cmq) carries the shear.
void MisuraFerroCheCorre(Barra& barra, const Conto& A, const DatiSolaioT& dati,
                         const RisultatiSolaioT& risultati);
// One that stops where the moment allows: area by arm (cmc) of it and of those that stop before it,
// and of all steel.
void MisuraFerroInterrotto(Barra& barra, const Conto& a, const Conto& totale,
                           const DatiSolaioT& dati, const RisultatiSolaioT& risultati);
// A stub of the support, for the part M of its moment.
void MisuraMoncone(Moncone& moncone, const Conto& M, const Appoggio& appoggio,
                   const RisultatiSolaioT& risultati);

}  // namespace orm
