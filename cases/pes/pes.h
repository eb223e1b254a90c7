// Estimates of goods.
#pragma once

namespace orm {

struct DatiPes;
class Parcella;
struct RunState;

void InputPes(RunState& stato);

// The note of the data, printed on a blank one.
Parcella CalcoloPes(Parcella parcella, const DatiPes& dati);

}  // namespace orm
