// The data of a note of price updating and their file INP_AGP[_E].DAP.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/data_file.h"

namespace orm {

inline constexpr int kLottiAgpMassimi = 20;

struct LottoAgp {
  std::string Classe, Categoria;
  double Importo = 0;  // updated amount of the works, in the currency of the note
};

struct DatiAgp {
  std::string TipoDiAggiornamento = "SEMPLICE AGGIORNAMENTO";  // "NUOVE ANALISI"
  // Whether the increase of a partial commission is charged, the opposite of what the dialog asks.
  std::string EsecutoreDellAggiornamento = "NO";
  std::string PeriodoTariffario = "5";
  std::vector<LottoAgp> Lotti;
};

template <class Archive>
void Campi(Archive& file, DatiAgp& d) {
  auto LottiAgp = static_cast<std::int16_t>(d.Lotti.size());
  file.Line(Field("TipoDiAggiornamento", d.TipoDiAggiornamento),
            Field("EsecutoreDellAggiornamento", d.EsecutoreDellAggiornamento),
            Field("PeriodoTariffario", d.PeriodoTariffario),
            CountField("LottiAgp", LottiAgp, kLottiAgpMassimi));
  d.Lotti.resize(static_cast<std::size_t>(LottiAgp));
  for (LottoAgp& lotto : d.Lotti)
    file.Line(Field("Classe", lotto.Classe), Field("Categoria", lotto.Categoria),
              MoneyField("Importo", lotto.Importo));
}

}  // namespace orm
