// The fixed rates of expropriation plans.
//
// Source: fixed compensations under the tariff of Legge 2-3-1949 n. 143 (Gazzetta Ufficiale
// 19-4-1949 n. 90). Unit: whole Lire a piece.
// Oddities: the texts stand in the report as written, each beside its rate, and that of the
// holdings has four zeros behind its point. The rate of the parcels of the condition report is a
// constant in Euro and not the conversion of the Lire.
#pragma once

#include <cstdint>

namespace orm {

struct TariffaPpe {
  std::int32_t lire;
  double euro;  // 0: the Lire through LireInEuro
  const char* testoLire;
  const char* testoEuro;
  const char* cosa;  // what it pays
};

inline constexpr TariffaPpe kTariffaPartita{106000, 0, " x 106.0000", " x 54,74",
                                            "ogni partita catastale"};
inline constexpr TariffaPpe kTariffaParticella{40000, 0, " x 40.000", " x 20,66",
                                               "ogni particella catastale"};
inline constexpr TariffaPpe kTariffaVerbale{139000, 0, "139.000", "71,79",
                                            "il verbale di consistenza, quota fissa"};
inline constexpr TariffaPpe kTariffaParticellaVerbale{29000, 14.98, "x29.000", "x 14,98",
                                                      "il verbale, per ogni particella"};
inline constexpr TariffaPpe kTariffaFabbricato{149000, 0, "x149.000", "x 76,95",
                                               "il verbale, per ogni fabbricato"};
inline constexpr TariffaPpe kTariffaFrazionamento{1800000, 0, " x 1.800.000", " x 929,62",
                                                  "ogni frazionamento"};

}  // namespace orm
