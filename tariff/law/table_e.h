// Table E: measurement and accounting of works.
//
// Source: Table E of Legge 2-3-1949 n. 143, rates of D.M. 25-2-1965 in percent; the later decrees
// multiply them. The limits of the bands in Euro are those in Lire at 1936.27, rounded to the cent.
// Oddity: beyond the last limit the factor of the last period is that of the one before it.
#pragma once

#include <array>

namespace orm {

inline constexpr std::array<double, 5> kLimitiTabellaELire = {5000000, 20000000, 50000000,
                                                              100000000, 5000000000};
inline constexpr std::array<double, 5> kLimitiTabellaEEuro = {2582.28, 10329.14, 25822.84, 51645.69,
                                                              2582284.49};
inline constexpr std::array<double, 6> kAliquoteTabellaE = {0.966, 0.8855, 0.805,
                                                            0.644, 0.5635, 0.5635};

// Periods 1 to 4, then every other; and the last one in the band without a limit.
inline constexpr std::array<double, 5> kMoltiplicatoriTabellaE = {1, 1.15, 1.3225, 1.587, 1.9044};
inline constexpr double kMoltiplicatoreOltre = 1.587;

}  // namespace orm
