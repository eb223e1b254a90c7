// The fee curve of the year 2001, by class and category of the works.
//
// Source: Tabella A annexed to D.M. 4-4-2001, Gazzetta Ufficiale 26-4-2001 n. 96, given there as a
// curve in place of steps; in force for public works after Table A of 1949.
// Unit: the percentage of an amount X in Lire is 10^p * X^b + q.
// Oddities: the curve is flat up to 50 million and, for class 5, from 1,000 million on; for the
// other classes from 100,000 million on.
#pragma once

#include <array>
#include <string_view>

namespace orm {

// Lire: where the curve begins to fall, and where it ends.
inline constexpr double kCurvaDa = 50000000, kCurvaFino = 100000000000;
inline constexpr double kCurvaFinoClasse5 = 1000000000;

struct CurvaTariffa {
  std::string_view chiave;  // works, as in class_rows.h
  double b, p, q;
};

inline constexpr std::array<CurvaTariffa, 26> kTabellaNuova = {{
    {"1a", -0.362475797, 3.796119632, 2.3301}, {"1b", -0.348087186, 3.756586012, 2.7961},
    {"1c", -0.380099837, 4.129804521, 2.9689}, {"1d", -0.389989558, 4.32965606, 3.6743},
    {"1e", -0.404028835, 4.555142495, 4.806},  {"1f", -0.384364863, 4.068245092, 2.5425},
    {"1g", -0.403538467, 4.340653828, 2.9689}, {"2a", -0.400979213, 4.087647772, 1.7658},
    {"2b", -0.403915538, 4.198259504, 2.1193}, {"2c", -0.447571561, 4.719930875, 2.403},
    {"3a", -0.411007347, 4.315359685, 2.3301}, {"3b", -0.404084946, 4.291209646, 2.6138},
    {"3c", -0.400978556, 4.388670541, 3.5316}, {"4a", -0.341545259, 3.677382095, 2.9689},
    {"4b", -0.357907439, 3.73404152, 2.2603},  {"4c", -0.348185613, 3.556524445, 1.9085},
    {"5", -0.451353517, 4.494862399, 2.0},     {"6a", -0.295271914, 3.03883896, 2.1335},
    {"6b", -0.330735265, 3.575655954, 3.0655}, {"7a", -0.331162187, 3.353747178, 1.8197},
    {"7b", -0.305298293, 3.204618336, 2.4411}, {"7c", -0.322882079, 3.450208659, 2.7866},
    {"8", -0.368145778, 3.857138585, 2.3316},  {"9a", -0.380316864, 3.853916919, 1.7151},
    {"9b", -0.37262385, 4.024535343, 3.0703},  {"9c", -0.373055082, 4.102953975, 3.6394},
}};

}  // namespace orm
