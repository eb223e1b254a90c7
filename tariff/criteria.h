// The criteria of calculation that the user chooses, kept in CRITERI.PER.
#pragma once

#include <cstdint>
#include <string>

namespace orm {

struct Criteri {
  std::string TipoPercentualeCompensi = "CALCOLATA";  // "ASSEGNATA", "CALABRIA", "NUOVA TARIFFA"
  std::string AliquoteDirezioneLavori = "UNITE";      // "SEPARATE"
  std::string ResidenzaCollaudatore = "ENTRO100KM";   // "OLTRE100KM", "FUORIREGIONE"
  double PercCompensiAssegnata = 0;
  std::uint8_t DecimaliTabelle = 0;  // 0: by the amount
  std::uint8_t DecimaliCompensi = 0;
  std::string CompensiSuSorveglianza = "SI";
  std::string CompensiSuMaggiorazione = "SI";
  std::string StampaParere = "NO";
  double QuotaFissaParere = 0;  // Euro
  double QuotaPercentualeParere = 0;
  std::string PresidenteOrdine;
  std::string StampaSpeseAggiuntive = "NO";
  std::string SpesaInarcassa = "NO";
  std::string SpesaInps = "NO";
  std::string SpesaIva = "NO";
  std::string SpesaTassaParere = "NO";
  double PercInarcassa = 2;
  double PercInps = 4;
  double PercIva = 20;
};

}  // namespace orm
