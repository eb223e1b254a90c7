// The check of a section told as a hand calculation: formula, numbers, result.
#pragma once

#include <array>

#include "runtime/explanation/explanation.h"
#include "structures/solvers/section_circular.h"
#include "structures/solvers/section_t.h"

namespace orm {

struct TensioniAmmissibili {
  double acciaio = 0, cls = 0;  // kg/cmq
};

// How the axis and the stresses are shown.
inline constexpr const char *kModelloAsse = "###0.00", *kModelloTensione = "###0.0";

// Of the axis, of the concrete at both edges, and of the two extremes of steel as the dialogs show
// them. The results are those of the solvers, of which the neutral axis and the moment of inertia
// are enough to reckon each stress again; stresses are shown by `modello`.
using CateneFlessione = std::array<Catena, 5>;
CateneFlessione SpiegaSezioneT(const DatiSezione& dati, const RisultatiSezione& risultati,
                               const TensioniAmmissibili& ammesse,
                               const char* modello = kModelloTensione);
CateneFlessione SpiegaSezioneC(const DatiCircolare& dati, const RisultatiCircolare& risultati,
                               const TensioniAmmissibili& ammesse);

}  // namespace orm
