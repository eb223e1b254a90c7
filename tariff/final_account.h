// The end of every fee note: summary of its parts, totals, reduction, advances, signature, further
// costs of the client, and the opinion of the professional's Order.
#pragma once

#include <span>
#include <string_view>

#include "shell/state/run_state.h"

namespace orm {

// Prints the final account on `stato.NumFileUscita` from the sum of the fees and the sum of the
// accessory compensations, in the currency of the note, with the closing values and the criteria
// of `stato`. What is printed is what is summed: each figure is cut where it is printed. A note in
// Lire is brought to Euro once, at its net amount, and goes on in Euro from there.
void ChiudiParcella(RunState& stato, double onorari, double compensi);

// The summary of a note by kinds of service; lines of 0 are left out, the others are cut to what
// is printed. `tipo` is "PD" (six amounts) or "GEO" (three).
void StampaRiepilogoPrestazioni(RunState& stato, std::string_view tipo, std::span<double> importi);
// The same for the notes of public works: "EL" (four amounts) or "GEO" (three).
void StampaRiepilogoEsl(RunState& stato, std::string_view tipo, std::span<double> importi);

}  // namespace orm
