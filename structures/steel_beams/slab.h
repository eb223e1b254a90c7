// Single-span floor of NP beams, hollow tiles and a thin slab of concrete on top: stresses in the
// beam, which alone carries, and deflection of beam and slab together.
#pragma once

#include "structures/steel_beams/beams.h"

namespace orm {

inline constexpr double kModuloAcciaio = 2100000;  // kg/cmq
// Accepted deflections as parts of the span (CNR 10011).
inline constexpr double kFrecciaTotaleAmmessa = 400, kFrecciaPermanenteAmmessa = 500;

struct DatiSolaioP : DatiPutrelle {
  double cMezzeria = 0, cIncastro = 0;  // of M = q L^2 / c; 0 where there is no such moment
};

struct Freccia {
  double calcolata = 0, accettata = 0;  // cm
  Catena passi;                         // how it came about
};

struct RisultatiSolaioP : VerificaPutrella {
  Freccia permanente, totale;
};

// The least height of a floor: a twenty-fifth of the span (m) against the height (cm).
bool AltezzaSolaioInsufficiente(double luce, double altezza);

// The larger of the moments q L^2 / c, kg x m; coefficients of 0 are left out.
Conto MomentoSolaioP(double luce, double q, double cMezzeria, double cIncastro);

// Moment of inertia of beam and slab, cm4, whose steps `passi` takes: the concrete, as wide as the
// beams are apart and as thick as the section is higher than the beam, counts a fifteenth.
double InerziaComposta(const DatiSolaioP& dati, Catena& passi);

// A coefficient of the support that is more than building in can do: the deflection comes out too
// small, below 0 under 9.6.
bool IncastroEccessivo(double cIncastro);

// Deflection of a span in cm for 1 kg/cm over 1 cm4. k is 43 for a hinged beam and 47 for a
// built-in one.
Conto FrecciaUnitaria(double luce, double cIncastro);

RisultatiSolaioP VerificaSolaioP(const DatiSolaioP& dati);

}  // namespace orm
