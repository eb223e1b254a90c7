// The reports of floors of NP beams and hollow tiles: slabs and cantilevers.
#pragma once

#include "runtime/report_printer.h"
#include "structures/steel_beams/cantilever.h"
#include "structures/steel_beams/slab.h"

namespace orm {

inline constexpr const char* kRelazioneSolaioP = "OUT_SOLAI.DOC";
inline constexpr const char* kRelazioneSbalzoP = "OUT_SBALZIP.DOC";

// One element. The first of a report (`primo`) has the heading above it.
void StampaSolaioP(ReportPrinter& relazione, bool primo, int numero, const DatiSolaioP& dati,
                   const RisultatiSolaioP& risultati);
void StampaSbalzoP(ReportPrinter& relazione, bool primo, int numero, const DatiSbalzoP& dati,
                   const VerificaPutrella& risultati);

}  // namespace orm
