// Condition surveys of lands and buildings.
#pragma once

namespace orm {

struct DatiStc;
class IndiciFoi;
class Parcella;
struct RunState;

void InputStc(RunState& stato);

// The note of the data, printed on a blank one. An IND.CFG that cannot answer for the month of the
// service is a failure.
Parcella CalcoloStc(Parcella parcella, const DatiStc& dati, const IndiciFoi& indici);

}  // namespace orm
