// Surveys of lands in plan and height.
#pragma once

namespace orm {

struct DatiRpa;
class Parcella;
struct RunState;

void InputRpa(RunState& stato);

// The note of the data, printed on a blank one; `totale` receives the sum of the fees.
Parcella CalcoloRpa(Parcella parcella, const DatiRpa& dati, double& totale);

}  // namespace orm
