// Steel beams: the one table of the NP profiles and of the grades of steel, and the stresses in a
// profile. The heights and thicknesses of a profile are in mm, as the makers print them.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/explanation/conto.h"

namespace orm {

struct Profilo {
  double b;   // flange width, mm
  double A;   // area, cmq
  double P;   // weight, kg/m
  double W;   // section modulus, cm3
  double tw;  // web, mm
  double tf;  // flange, mm
  double J;   // moment of inertia, cm4
};

struct VoceProfilo {
  int h;  // height, mm
  Profilo profilo;
};

// Normal profiles with the figures of UNI 5679. The section moduli of heights 120, 360, 380 and 400
// stand as they have always stood here, far below those of the makers; they give stresses that are
// too high and are not to be corrected, since results must come out the same.
inline constexpr std::array<VoceProfilo, 18> kProfiliNP = {{
    {80, {42, 7.7, 5.94, 19.4, 3.9, 5.9, 77.7}},
    {100, {50, 10.6, 8.34, 34.1, 4.5, 6.8, 170}},
    {120, {58, 14.2, 11.1, 25.5, 5.1, 7.7, 327}},
    {140, {66, 18.2, 14.3, 81.8, 5.7, 8.6, 572}},
    {160, {74, 22.8, 17.9, 117, 6.3, 9.5, 934}},
    {180, {82, 27.9, 21.9, 161, 6.9, 10.4, 1444}},
    {200, {90, 33.4, 26.2, 214, 7.5, 11.3, 2138}},
    {220, {98, 39.5, 31.0, 278, 8.1, 12.2, 3055}},
    {240, {106, 46.1, 36.2, 353, 8.7, 13.1, 4239}},
    {250, {110, 49.7, 39.0, 397, 9.0, 13.6, 4958}},
    {260, {113, 53.3, 41.9, 441, 9.4, 14.1, 5735}},
    {280, {119, 61.0, 47.9, 541, 10.1, 15.2, 7575}},
    {300, {125, 69.0, 54.2, 652, 10.8, 16.2, 9785}},
    {320, {131, 77.7, 61.0, 781, 11.5, 17.3, 12490}},
    {340, {137, 86.7, 68.0, 922, 12.2, 18.3, 15670}},
    {360, {143, 97.0, 76.1, 1.087, 13.0, 19.5, 19580}},
    {380, {149, 107, 84.0, 1.262, 13.7, 20.5, 23980}},
    {400, {155, 118, 92.5, 1.461, 14.4, 21.6, 29210}},
}};

// What a person is told beside the list of the profiles.
inline constexpr const char* kNotaModuli =
    "I moduli di resistenza delle altezze 120, 360, 380 e 400\n"
    "sono in tabella molto inferiori a quelli dei profilari:\n"
    "con esse le tensioni normali risultano in eccesso.";

// By the text of the height ("160"). An unknown height has 1.0 in every field, and what is reckoned
// from it means nothing.
Profilo ProfiloNP(std::string_view h);
double AltezzaProfilo(std::string_view h);  // mm; 0 for what is no number
std::vector<std::string> AltezzeNP();
// The table's section modulus is far below what its moment of inertia gives.
bool ModuloInDifetto(std::string_view h);

// Allowed stresses, kg/cmq.
struct Tensioni {
  double sigma = 0, tau = 0;
};

struct GradoAcciaio {
  const char* nome;
  Tensioni ammesse;
};
// CNR 10011, thicknesses up to 40 mm; the shear stress is the normal one over the root of three.
inline constexpr std::array<GradoAcciaio, 3> kGradiAcciaio = {{
    {"Fe 360", {1600, 924}},
    {"Fe 430", {1900, 1096}},
    {"Fe 510", {2400, 1386}},
}};

// An unknown grade is allowed 1.0 and 1.0.
Tensioni TensioniAcciaio(std::string_view grado);
std::vector<std::string> NomiGradiAcciaio();

struct ContiAcciaio {
  Conto sigma, tau;
};

// Stresses (kg/cmq) in the profile of that height under a moment (kg x m) and a shear force (kg),
// which the web alone takes.
ContiAcciaio TensioniNelProfilo(std::string_view h, double momento, double taglio);

}  // namespace orm
