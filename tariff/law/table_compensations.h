// Percentages of the accessory compensations (art. 13 of Legge 2-3-1949 n. 143, Gazzetta Ufficiale
// 19-4-1949 n. 90) that do not come from a file. Unit: percent of the fee, by the amount of works.
#pragma once

#include <array>
#include <limits>

#include "tariff/law/table_curve_2001.h"

namespace orm {

// Source: the criterion of the Region Calabria for testing fees, by the residence of the tester.
// Amounts in Lire. The first row that fits counts; the Lira between the first two is in none.
struct FasciaCalabria {
  double da, fino;
  double fuoriRegione, oltre100Km, entro100Km;
};
inline constexpr std::array<FasciaCalabria, 3> kFasceCalabria = {{
    {std::numeric_limits<double>::lowest(), 1500000000, 60, 60, 60},
    {1500000001, 3000000000, 60, 45, 45},
    {3000000000, std::numeric_limits<double>::max(), 60, 45, 30},
}};

// Source: D.M. 4-4-2001, Gazzetta Ufficiale 26-4-2001 n. 96. Up to `fino` the greatest percentage,
// from `da` a straight fall to the least one at `a`; in Lire these are the ends of the curve. The
// figures in Euro are those of the decree and not conversions; what lies between `fino` and `da`
// has none.
inline constexpr double kCompensiMassimi2001 = 30, kCompensiMinimi2001 = 15;
struct Compensi2001 {
  double fino, da, a;
  double ampiezza;  // of the fall
};
inline constexpr Compensi2001 kCompensi2001Lire{kCurvaDa, kCurvaDa + 1, kCurvaFino,
                                                kCurvaFino - (kCurvaDa + 1)};
inline constexpr Compensi2001 kCompensi2001Euro{25822.84, 25822.85, 51645689.91, 51619867.06};

}  // namespace orm
