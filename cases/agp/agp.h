// Updating of the prices of a design.
#pragma once

namespace orm {

struct DatiAgp;
class Parcella;
struct RunState;

void InputAgp(RunState& stato);

// The note of the data, printed on a blank one. A period that there is not is a failure.
Parcella CalcoloAgp(Parcella parcella, const DatiAgp& dati);

}  // namespace orm
