// Design and supervision of public works under D.M. 4-4-2001: the fee of each lot by groups of
// services of Tables B and B1.
#pragma once

namespace orm {

struct DatiEsl;
class Parcella;
struct RunState;

void InputEsl(RunState& stato);

// The note of the data, printed on a blank one. A lot with a class outside the tables and an
// eleventh lot with accounting are a failure.
Parcella CalcoloEsl(Parcella parcella, const DatiEsl& dati);

}  // namespace orm
