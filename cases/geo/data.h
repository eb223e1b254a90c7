// The data of a note of geotechnical services and their file INP_GEO[_E].DAP.
//
// A group is a subclass; under it stands one row for each tariff period.
#pragma once

#include <string>
#include <vector>

#include "tariff/files/row_lots.h"

namespace orm {

inline constexpr int kGruppiGeoMassimi = 10;
inline constexpr int kRigheGeoMassime = 20;

// Amounts are in the currency of the note. One below 0 counts for its group and brings no fee.
struct RigaGeo {
  std::string Sottoclasse = "1";  // to "4"
  std::string Tariffa;            // "1" to "5"
  double ImportoProgetto = 0;
  double ImportoDirezione = 0;
  std::string TipoDiPrestazione = "T";  // "P" partial, otherwise complete
  std::string StringaDellePrestazioni = "a+b+c+d+e+f";
};

struct DatiGeotecnici {
  std::string TipoDiParcella = "NORMALE";    // "CONSUNTIVA", "INTERROTTA", "SCISSA"
  std::string MaggiorazioneParziale = "NO";  // "SI": increase of art. 18
  std::vector<LottoARighe> Gruppi;
  std::vector<RigaGeo> Righe;
  double CostoIndagini = 0;  // of investigations and tests
};

template <class Archive>
void Campi(Archive& file, DatiGeotecnici& d) {
  auto NumeroGruppi = static_cast<std::int16_t>(d.Gruppi.size());
  auto NumeroLotti = static_cast<std::int16_t>(d.Righe.size());
  file.Line(Field("TipoDiParcella", d.TipoDiParcella),
            Field("MaggiorazioneParziale", d.MaggiorazioneParziale),
            CountField("NumeroGruppi", NumeroGruppi, kGruppiGeoMassimi),
            CountField("NumeroLotti", NumeroLotti, kRigheGeoMassime));
  d.Gruppi.resize(static_cast<std::size_t>(NumeroGruppi));
  d.Righe.resize(static_cast<std::size_t>(NumeroLotti));
  CampiLottiARighe(file, d.Gruppi, d.Righe.size(),
                   {"PeriodiDelGruppo", "UltimoLottoDelGruppo", "TariffaDelGruppo"});
  for (RigaGeo& r : d.Righe)
    file.Line(Field("Sottoclasse", r.Sottoclasse), Field("Tariffa", r.Tariffa),
              MoneyField("ImportoProgetto", r.ImportoProgetto),
              MoneyField("ImportoDirezione", r.ImportoDirezione),
              Field("TipoDiPrestazione", r.TipoDiPrestazione),
              Field("StringaDellePrestazioni", r.StringaDellePrestazioni));
  file.Line(MoneyField("CostoIndagini", d.CostoIndagini));
}

}  // namespace orm
