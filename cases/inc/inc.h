// The chief engineer of public works.
#pragma once

namespace orm {

struct DatiInc;
class Parcella;
struct RunState;
class TariffaInc;

void InputInc(RunState& stato);

// The note of the data, printed on a blank one. A period that there is not is a failure.
Parcella CalcoloInc(Parcella parcella, const DatiInc& dati, const TariffaInc& tariffa);

}  // namespace orm
