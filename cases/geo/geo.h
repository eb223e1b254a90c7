// Geotechnical services: a percentage of their own by subclass and period, kept in GEO.CFG.
#pragma once

namespace orm {

struct DatiGeotecnici;
class Parcella;
struct RunState;
class TariffaGeo;

void DatiGEO(RunState& stato);

// The note of the data, printed on a blank one.
Parcella CalcoloGEO(Parcella parcella, const DatiGeotecnici& dati, const TariffaGeo& tariffa);

}  // namespace orm
