// Support to the manager of the procedure of public works.
#pragma once

namespace orm {

struct DatiSup;
class Parcella;
struct RunState;

void InputSup(RunState& stato);

// The note of the data, printed on a blank one.
Parcella CalcoloSup(Parcella parcella, const DatiSup& dati);

}  // namespace orm
