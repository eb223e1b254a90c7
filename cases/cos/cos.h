// Static testing of structures: the cases "CS1" and "CS2", which differ in their tariff file and in
// the tables of the revision of the stability calculations. CasoDiParcella tells which.
#pragma once

namespace orm {

struct DatiCos;
class Parcella;
struct RunState;
class TariffaCos;

void InputCos(RunState& stato);

// The note of the data, printed on a blank one, by the tariff of CS1.CFG or CS2.CFG.
Parcella CalcoloCos(Parcella parcella, const DatiCos& dati, const TariffaCos& tariffa);

}  // namespace orm
