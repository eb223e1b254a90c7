// The fees of a note by kinds of service.
#include <span>
#include <string>
#include <string_view>

#include "tariff/parcella.h"
#include "tariff/report.h"

namespace orm {
namespace {

constexpr std::string_view kPrestazioniPd[] = {
    "Per PROGETTAZIONE   ",     "Per DIREZIONE LAVORI", "Per SORVEGLIANZA",
    "Per MISURE E CONTABILITÀ", "Per REVISIONE PREZZI", "Per CERTIFICATO REGOLARE ESECUZIONE"};
constexpr std::string_view kPrestazioniEl[] = {"Per PROGETTAZIONE   ", "Per DIREZIONE LAVORI",
                                               "Per MISURE E CONTABILITÀ",
                                               "Per CERTIFICATO REGOLARE ESECUZIONE"};
constexpr std::string_view kPrestazioniGeo[] = {"Per PROGETTAZIONE   ", "Per DIREZIONE LAVORI",
                                                "Per COMPENSI AGGIUNTIVI"};

std::span<const std::string_view> PrestazioniDi(std::string_view tipo) {
  if (tipo == "PD") return kPrestazioniPd;
  if (tipo == "EL") return kPrestazioniEl;
  if (tipo == "GEO") return kPrestazioniGeo;
  return {};
}

}  // namespace

void Parcella::StampaRiepilogoPrestazioni(std::string_view tipo, std::span<Conto> importi) {
  const auto prestazioni = PrestazioniDi(tipo);
  uscita.Line(kRigaRiepilogo);
  for (std::size_t i = 0; i < prestazioni.size() && i < importi.size(); ++i) {
    if (importi[i] == 0) continue;
    double importo = importi[i];
    StampaRigaOnorario(1, std::string(prestazioni[i]), importo);
    Spiega([&]() -> Catena {
      return {PassoImporto(importi[i].Semplice() ? "Onorario calcolato sopra"
                                                 : "Somma degli onorari calcolati sopra",
                           importi[i])};
    });
    importi[i] = importo;
  }
}

}  // namespace orm
