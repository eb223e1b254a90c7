// Administrative testing of works, and the certificate of their regular execution.
#pragma once

namespace orm {

struct DatiCoa;
class Parcella;
struct RunState;

void InputCoa(RunState& stato);

// The note of the data, printed on a blank one.
Parcella CalcoloCoa(Parcella parcella, const DatiCoa& dati);

}  // namespace orm
