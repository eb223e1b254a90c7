// Expropriation plans: a fixed tariff for each cadastral unit.
#pragma once

namespace orm {

struct DatiPpe;
class Parcella;
struct RunState;

void InputPpe(RunState& stato);

// The note of the data, printed on a blank one; `totale` receives the sum of the fees. A product in
// Lire beyond 32 bits is a failure.
Parcella CalcoloPpe(Parcella parcella, const DatiPpe& dati, double& totale);

}  // namespace orm
