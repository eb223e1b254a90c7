// The decrees that the periods of the tariff are named for, 1 to 6, and how each raised it.
//
// Source: D.M. 25-2-1965, 18-11-1971, 13-4-1976, 29-6-1981 and 11-6-1987, which put Legge 2-3-1949
// n. 143 up in proportion; D.M. 4-4-2001, for public works, Gazzetta Ufficiale 26-4-2001 n. 96.
// Unit: factors. `aumento` is the rise over the decree before, `coefficiente` the whole rise since
// 1965. Tables A and C take the product of the rises, which binary fractions keep a hair away from
// the whole ones; Table E takes these.
// Oddities: the decree of 1987 brought nothing beyond the end of the tables. That of 2001 has a
// curve of its own and no rise: by the old tables it comes to 0. Its name ends in a blank.
#pragma once

#include <array>
#include <string_view>

namespace orm {

struct DecretoTariffario {
  std::string_view nome;
  std::string_view validita;
  double aumento, aumentoOltre;  // up to the end of the tables and beyond
  double coefficiente, coefficienteOltre;
  std::string_view sigla;
};

inline constexpr std::array<DecretoTariffario, 6> kDecreti = {{
    {"D.M. 25-febbraio-1965", "dal 18-03-1965 al 18-12-1971", 1, 1, 1, 1, "D.M. 25-2-1965"},
    {"D.M. 18-novembre-1971", "dal 19-12-1971 al 05-05-1976", 1.15, 1.15, 1.15, 1.15,
     "D.M. 18-11-1971"},
    {"D.M. 13-aprile-1976", "dal 06-05-1976 al 18-07-1981", 1.15, 1.15, 1.3225, 1.3225,
     "D.M. 13-4-1976"},
    {"D.M. 29-giugno-1981", "dal 19-07-1981 al 30-06-1987", 1.2, 1.2, 1.587, 1.587,
     "D.M. 29-6-1981"},
    {"D.M. 11-giugno-1987", "dall' 01-07-1987 a  oggi", 1.2, 1.0, 1.9044, 1.587, "D.M. 11-6-1987"},
    {"D.M. 4-aprile-2001 ", "", 0, 0, 0, 0, "D.M. 4-4-2001"},
}};

// The last one of Tables A, C and E, and that of the curve.
inline constexpr int kPeriodo1987 = 5, kPeriodo2001 = 6;

}  // namespace orm
