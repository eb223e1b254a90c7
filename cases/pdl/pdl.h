// Design and supervision of private works, and of public works before D.M. 4-4-2001: lots that run
// through several tariff periods.
#pragma once

namespace orm {

struct DatiPdl;
class Parcella;
struct RunState;

void InputPdl(RunState& stato);

// The note of the data, printed on a blank one.
Parcella CalcoloPdl(Parcella parcella, const DatiPdl& dati);

}  // namespace orm
