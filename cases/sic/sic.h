// Site safety (D.Lgs 494/96): the cases "SC1", by the national councils with Table A, and "SC2", by
// D.M. 4-4-2001 with its curve. CasoDiParcella tells which.
#pragma once

namespace orm {

struct DatiSicurezza;
class Parcella;
struct RunState;

void DatiSIC(RunState& stato);

// The note of the data, printed on a blank one. A least fee by the part of the works done, where no
// works were designed, is a failure.
Parcella CalcoloSIC(Parcella parcella, const DatiSicurezza& dati);

}  // namespace orm
