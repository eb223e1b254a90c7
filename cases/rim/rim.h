// Surveys of buildings.
#pragma once

namespace orm {

struct DatiRim;
class Parcella;
struct RunState;

void InputRim(RunState& stato);

// The note of the data, printed on a blank one; `totale` receives the sum of the fees.
Parcella CalcoloRim(Parcella parcella, const DatiRim& dati, double& totale);

}  // namespace orm
