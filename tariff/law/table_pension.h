// The rules of the INARCASSA pension for the year 2001: caps, revaluation, bands and yields.
//
// Source: Legge 3-1-1981 n. 6, with the figures that the institute made known for the pensions of
// 2001: rules of that year, not parameters.
// Unit: Lire; yields in percent.
// Oddities: the cap of 1994 is lower than the limit that it is tested by.
#pragma once

#include <array>

namespace orm {

// The incomes that are looked at, and the best of them that make the mean.
inline constexpr int kAnniReddito = 17;
inline constexpr int kAnniMedia = 12;
inline constexpr int kPrimoAnno = 1984;

struct AnnoReddito {
  double limite;         // an income that is not lower than this ...
  double valore;         // ... counts as this
  double rivalutazione;  // coefficient to the year 2001
};

inline constexpr std::array<AnnoReddito, kAnniReddito> kMassimaliReddito{{
    {55200000, 55200000, 2.0531},    // 1984
    {63500000, 63500000, 1.8906},    // 1985
    {70200000, 70200000, 1.7819},    // 1986
    {76200000, 76200000, 1.7031},    // 1987
    {80800000, 80800000, 1.6227},    // 1988
    {84500000, 84500000, 1.5221},    // 1989
    {88700000, 88700000, 1.4346},    // 1990
    {94100000, 94100000, 1.3482},    // 1991
    {100100000, 100100000, 1.2791},  // 1992
    {105500000, 105500000, 1.2275},  // 1993
    // In 1994 an income at the limit or above counts as the cap of 1993, while one just under the
    // limit is kept: stays as it is.
    {109900000, 105500000, 1.181},
    {114200000, 114200000, 1.121},   // 1995
    {120400000, 120400000, 1.0789},  // 1996
    {125100000, 125100000, 1.0605},  // 1997
    {127200000, 127200000, 1.0418},  // 1998
    {129500000, 129500000, 1.0256},  // 1999
    {131600000, 131600000, 1},       // 2000
}};

inline constexpr double kPensioneMinima = 16080000;

// Bands of the mean income, and the yield of each for a year and for a day of contribution, in
// percent of the income that lies in it.
struct FasciaReddito {
  double da, fino;  // the band begins at `da`; the rule of the band holds from da + 1 to `fino`
  double perAnno, perGiorno;
};

inline constexpr std::array<FasciaReddito, 4> kFasceReddito{{
    {0, 67400000, 2, 0.00555},
    {67400000, 101400000, 1.71, 0.00475},
    {101400000, 118400000, 1.43, 0.003972},
    {118400000, 135000000, 1.14, 0.003167},
}};

}  // namespace orm
