// The stepped formulas of condition surveys, at prices of January 1993.
//
// Source: fixed compensations under the tariff of Legge 2-3-1949 n. 143 (Gazzetta Ufficiale
// 19-4-1949 n. 90). Unit: Lire and Euro.
// Oddities: the figures in Euro are of their own and not the conversion of the others.
// Above `oltre` units the fee is `fisso` and `unitario` for each unit beyond; the text stands in
// the report before the figure of these units.
#pragma once

#include <array>
#include <cstdint>

namespace orm {

struct FormulaStc {
  double fisso;
  double unitario;  // 0: the step has no part that grows
  const char* testo;
};

struct ScaglioneStc {
  std::int32_t oltre;
  FormulaStc lire, euro;
};

inline constexpr std::array<ScaglioneStc, 4> kFormulaSuperficie = {{
    {0, {200000, 0, "200.000"}, {103.29, 0, "103,29"}},
    {2000, {200000, 85, "200.000 + 85x"}, {103.29, 0.04, "103,29 + 0,04x"}},
    {5000, {455000, 60, "200.000 + 85x3.000 + 60x"}, {223.29, 0.03, "103,29 + 0,04x3.000 + 0,03x"}},
    {10000,
     {755000, 30, "200.000 + 85x3.000 + 60x5.000 + 30x"},
     {373.29, 0.02, "103,29 + 0,04x3.000 + 0,03x5.000 + 0,02x"}},
}};

inline constexpr std::array<ScaglioneStc, 2> kFormulaPartite = {{
    {0, {175000, 0, "175.000"}, {90.38, 0, "90,38"}},
    {1, {175000, 60000, "175.000 + 60.000x"}, {90.38, 30.99, "90,38 + 30,99x"}},
}};

inline constexpr std::array<ScaglioneStc, 1> kFormulaMappali = {{
    {0, {0, 30000, "30.000 x "}, {0, 15.49, "15,49 x "}},
}};

inline constexpr std::array<ScaglioneStc, 5> kFormulaAbitazioni = {{
    {0, {350000, 0, "350.000"}, {180.76, 0, "180,76"}},
    {500, {350000, 350, "350.000+350x"}, {180.76, 0.18, "180,76+0,18x"}},
    {2000, {875000, 230, "350.000+350x1.500+230x"}, {450.76, 0.12, "180,76+0,18x1.500+0,12x"}},
    {4000,
     {1335000, 115, "350.000+350x1.500+230x2.000+115x"},
     {690.76, 0.06, "180,76+0,18x1.500+0,12x2.000+0,06x"}},
    {8000,
     {1795000, 60, "350.000+350x1.500+230x2.000+115x4.000+60x"},
     {930.76, 0.03, "180,76+0,18x1.500+0,12x2.000+0,06x4.000+0,03x"}},
}};

inline constexpr std::array<ScaglioneStc, 3> kFormulaAgricole = {{
    {0, {350000, 0, "350.000"}, {180.76, 0, "180,76"}},
    {1000, {350000, 175, "350.000 + 175x "}, {180.76, 0.09, "180,76 + 0,09x "}},
    {2000,
     {525000, 115, "350.000 + 175x1.000 + 115x"},
     {270.76, 0.06, "180,76 + 0,09x1.000 + 0,06x"}},
}};

// Surcharge for fronts of roads that are widened, of the fee of surface, holdings and parcels.
inline constexpr double kFrontiStradali = 0.25;

}  // namespace orm
