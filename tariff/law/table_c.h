// Table C: percentages for measuring, accounting and testing of the works.
//
// Source: Tabella C annexed to Legge 2-3-1949 n. 143 (Gazzetta Ufficiale 19-4-1949 n. 90), in the
// text of D.M. 25-2-1965, in force from 18-3-1965; the later decrees multiply it like Table A.
// Unit: percent of the amount of the works; amounts in Lire.
// Oddities: the first percentage holds from 0, without a fall, and the last two steps are equal, so
// that the percentage stays where it is beyond 500 million.
#pragma once

#include <array>

namespace orm {

struct PassoTabellaC {
  double importo, percentuale;
};

inline constexpr std::array<PassoTabellaC, 21> kTabellaC = {{
    {0, 1.61},
    {1000000, 1.61},
    {2000000, 1.4168},
    {3000000, 1.288},
    {5000000, 1.127},
    {10000000, 0.7728},
    {15000000, 0.5635},
    {20000000, 0.4669},
    {30000000, 0.3381},
    {40000000, 0.2898},
    {50000000, 0.24955},
    {60000000, 0.2254},
    {70000000, 0.2093},
    {80000000, 0.20125},
    {90000000, 0.1932},
    {100000000, 0.18515},
    {150000000, 0.14651},
    {200000000, 0.12397},
    {300000000, 0.09982},
    {500000000, 0.07889},
    {500000001, 0.07889},
}};

}  // namespace orm
