// The data of a note of static testing and their files INP_CS1[_E].DAP, INP_CS2[_E].DAP.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "tariff/files/row_lots.h"

namespace orm {

inline constexpr int kLottiCosMassimi = 20;
inline constexpr int kRigheCosMassime = 20;
inline constexpr std::size_t kPeriodiCos = 5;
inline constexpr std::size_t kVariazioniCos = 5;

// Works whose stability calculations were revised; the period is blank in "CS2".
struct RigaCos {
  std::string Classe, Categoria, Periodo;
  double ImportoVerificato = 0;
};

// Amounts are in the currency of the note.
struct DatiCos {
  double ImportoTotaleCS = 0;                          // sum of the five
  std::array<double, kPeriodiCos> ImportoCS{};         // tested in each period
  std::array<double, kVariazioniCos> Maggiorazione{};  // percent, of either sign
  std::string RevisioneCalcoli = "NO";
  std::vector<LottoARighe> Lotti;
  std::vector<RigaCos> Righe;
};

template <class Archive>
void Campi(Archive& file, DatiCos& d) {
  auto LottiCS = static_cast<std::int16_t>(d.Lotti.size());
  auto RigheCS = static_cast<std::int16_t>(d.Righe.size());
  file.Line(MoneyField("ImportoTotaleCS", d.ImportoTotaleCS));
  auto& [i1, i2, i3, i4, i5] = d.ImportoCS;
  file.Line(MoneyField("ImportoCS(1)", i1), MoneyField("ImportoCS(2)", i2),
            MoneyField("ImportoCS(3)", i3), MoneyField("ImportoCS(4)", i4),
            MoneyField("ImportoCS(5)", i5));
  auto& [m1, m2, m3, m4, m5] = d.Maggiorazione;
  file.Line(Field("Maggiorazione(1)", m1), Field("Maggiorazione(2)", m2),
            Field("Maggiorazione(3)", m3), Field("Maggiorazione(4)", m4),
            Field("Maggiorazione(5)", m5));
  file.Line(Field("RevisioneCalcoli", d.RevisioneCalcoli));
  file.Line(CountField("LottiCS", LottiCS, kLottiCosMassimi),
            CountField("RigheCS", RigheCS, kRigheCosMassime));
  d.Lotti.resize(static_cast<std::size_t>(LottiCS));
  d.Righe.resize(static_cast<std::size_t>(RigheCS));
  CampiLottiARighe(file, d.Lotti, d.Righe.size(),
                   {"RigheLottoCS", "UltimaRigaCS", "PeriodoRigaCS", 5});
  for (RigaCos& riga : d.Righe)
    file.Line(Field("Classe", riga.Classe), Field("Categoria", riga.Categoria),
              Field("Periodo", riga.Periodo),
              MoneyField("ImportoVerificato", riga.ImportoVerificato));
}

}  // namespace orm
