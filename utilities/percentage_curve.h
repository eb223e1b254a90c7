// The curve of a percentage over the amount of works, drawn on a panel.
#pragma once

#include "dialogs/lavagna.h"
#include "utilities/percentages.h"

namespace orm {

inline constexpr double kLarghezzaCurva = 560;
inline constexpr double kAltezzaCurva = 260;

// Amounts from a million to a hundred thousand million Lire on a logarithmic axis; the amount asked
// for is marked where it lies in the range.
void DisegnaCurva(Lavagna& lavagna, const RichiestaPercentuali& richiesta, double importoLire);

}  // namespace orm
