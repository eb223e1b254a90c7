// The report of truss-joist slabs, OUT_SOLAIOT.DOC.
#pragma once

#include <string>

#include "runtime/report_printer.h"
#include "shell/state/run_state.h"
#include "structures/truss_slab/truss_slab.h"

namespace orm {

inline constexpr const char* kRelazioneSolaioT = "OUT_SOLAIOT.DOC";

// What the banner says of the maker besides its name: SOLAIOT.CFG, one line of three texts (two of
// the plant's address, one of the telephone). Without the file they are empty.
struct Produttore {
  std::string Stabilimento, Luogo, Telefono;
};
inline constexpr const char* kFileProduttore = "SOLAIOT.CFG";
Produttore LeggiProduttore(const WorkFolder& folder);

// The banner and the heading, which stand once at the top.
void StampaIntestazioneSolaioT(ReportPrinter& relazione, const Produttore& produttore);

// One slab. The bars that a design does not have are left out.
void StampaSolaioT(ReportPrinter& relazione, int numero, const DatiSolaioT& dati,
                   const RisultatiSolaioT& risultati);

}  // namespace orm
