#include "cases/geo/rules.h"

#include <algorithm>
#include <cmath>

#include "runtime/failure.h"
#include "tariff/law/table_geotechnics.h"
#include "tariff/lot_lines.h"

namespace orm {

std::size_t IndiceSottoclasse(const RigaGeo& riga) {
  const std::string& s = riga.Sottoclasse;
  if (s.size() != 1 || s < "1" || s > "4")
    throw RuntimeFailure("La sottoclasse geotecnica \"" + s + "\" non esiste.")
        .AtField("Sottoclasse");
  return static_cast<std::size_t>(s[0] - '1');
}

std::array<bool, 6> ServiziFattiGeo(const RigaGeo& riga) {
  std::array<bool, 6> fatti{};
  if (riga.TipoDiPrestazione != "P") {
    fatti.fill(true);
    return fatti;
  }
  const std::string& lettere = riga.StringaDellePrestazioni;
  for (std::size_t i = 0; i < lettere.size(); i += 2) {
    const auto posto = kLettereGeo.find(lettere[i]);
    if (posto == std::string_view::npos)
      throw RuntimeFailure("La prestazione \"" + std::string(1, lettere[i]) + "\" non esiste.")
          .AtField("StringaDellePrestazioni");
    fatti[posto] = true;
  }
  return fatti;
}

GruppoGeo BasiDelGruppo(const DatiGeotecnici& d, std::size_t primaRiga, std::size_t righe) {
  GruppoGeo g{.primaRiga = primaRiga, .righe = righe};
  for (std::size_t k = primaRiga; k < primaRiga + righe; ++k) {
    const RigaGeo& riga = d.Righe[k];
    g.SommaProgetto += riga.ImportoProgetto;
    g.SommaDirezione += riga.ImportoDirezione;
    g.ProgettoGruppo += std::fabs(riga.ImportoProgetto);
    if (riga.ImportoDirezione > kDirezioneMinimaSommata) g.DirezioneGruppo += riga.ImportoDirezione;
  }
  const std::string& tipo = d.TipoDiParcella;
  const bool suiLavori = tipo == "CONSUNTIVA" || tipo == "INTERROTTA" || tipo == "SCISSA";
  g.BaseDirezione = suiLavori ? g.DirezioneGruppo : std::max(g.ProgettoGruppo, g.DirezioneGruppo);
  return g;
}

}  // namespace orm
