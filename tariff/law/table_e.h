// Table E: measurement and accounting of works.
//
// Source: Table E of Legge 2-3-1949 n. 143 (Gazzetta Ufficiale 19-4-1949 n. 90) in the text of
// D.M. 25-2-1965; the later decrees multiply it by the coefficients of table_periods.h.
// Unit: percent of the part of the amount that lies in the band; limits in Lire and in Euro, these
// being the former at 1936.27, rounded to the cent. Coefficients are factors of the fee.
// Oddities: the last two bands have one rate; the last rise parts them.
#pragma once

#include <array>

namespace orm {

inline constexpr std::array<double, 5> kLimitiTabellaELire = {5000000, 20000000, 50000000,
                                                              100000000, 5000000000};
inline constexpr std::array<double, 5> kLimitiTabellaEEuro = {2582.28, 10329.14, 25822.84, 51645.69,
                                                              2582284.49};
inline constexpr std::array<double, 6> kAliquoteTabellaE = {0.966, 0.8855, 0.805,
                                                            0.644, 0.5635, 0.5635};

// The kinds of works of class 1, as the dialog words them before the coefficient, in its order; and
// the coefficient of all other classes.
struct LavoriContabilita {
  const char* nome;
  double coefficiente;
};
inline constexpr std::array<LavoriContabilita, 4> kLavoriClasse1 = {{
    {"NORMALI LAVORI EDILI                                       ", 1.00},
    {"RIPARAZIONI E TRASFORMAZIONI                    ", 1.20},
    {"AGGIUNTE ED AMPLIAMENTI                             ", 1.10},
    {"ORDINARIE MANUTENZIONI                              ", 1.40},
}};
inline constexpr double kCoefficienteAltreClassi = 0.70;

}  // namespace orm
