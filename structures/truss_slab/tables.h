// What the truss-joist slab is made of: modules, materials, blocks, bars and coefficients.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace orm {

// ---------------------------------------------------------------- the floor

struct ModuloSolaio {
  const char* nome;            // as the person chooses it
  const char* nomeRelazione;   // as the report prints it
  double b;                    // width of the module, cm
  double b0;                   // width of its ribs, cm
  double n;                    // joists in a module
  double laterizio, travetti;  // shares of the module in the self weight: m of blocks, cm of ribs
};
inline constexpr std::array<ModuloSolaio, 2> kModuliSolaio = {
    {{"MonoTRAVE", "MONOTRAVE", 50, 12, 1, 0.76, 15}, {"BiTRAVE", "BITRAVE", 62, 24, 2, 0.52, 30}}};

inline constexpr double kAreaTraliccio = 0.39;         // cmq, the two lower bars of a truss: 2 Ø 5
inline constexpr double kCopriferroInferiore = 2.0;    // cm, first lower layer
inline constexpr double kDistanzaSecondoStrato = 5.0;  // cm, second lower layer
inline constexpr double kCopriferroSuperiore = 4.0;    // cm, upper bars
inline constexpr double kRapportoLuci = 1.05;          // calculation span over clear span
inline constexpr double kPassoZonePiene = 0.125;       // m
inline constexpr double kLimiteZonePiene = 0.5;        // m
inline constexpr int kTentativiZonePiene = 15;

// A floor is at least 1/25 of its span high (D.M. 9-1-1996, floors).
inline constexpr double kRapportoLuceAltezza = 25.0;
// Beyond this clear span, m, a rib across the joists is advised: customary limit of the rules on
// hollow-block floors.
inline constexpr double kLuceTravettoRipartizione = 4.5;

inline constexpr std::array kSpessoriSolettina = {"4", "5", "6", "7", "8"};  // cm
inline constexpr std::array kBlocchi = {"R 38 x 12", "R 38 x 16", "R 38 x 20", "R 38 x 25",
                                        "R 38 x 30"};

// Figure of a block in the self weight, by the first letter and the last two characters (its
// height) of its name; 1 for a block that is not listed.
struct FiguraLaterizio {
  bool tipoS;
  std::string_view altezza;
  double peso;
};
inline constexpr std::array<FiguraLaterizio, 11> kPesiLaterizio = {{{true, "12", 6.5},
                                                                    {true, "16", 5.5},
                                                                    {true, "18", 5.0},
                                                                    {true, "20", 4.85},
                                                                    {true, "24", 4.75},
                                                                    {true, "28", 4.2},
                                                                    {false, "12", 4.1},
                                                                    {false, "16", 4.1},
                                                                    {false, "20", 3.5},
                                                                    {false, "25", 3.9},
                                                                    {false, "30", 3.5}}};

// ---------------------------------------------------------------- materials, kg/cmq
// Allowable stresses of D.M. 9-1-1996 (method of the allowable stresses).

struct TensioneFerro {
  std::string_view tipo;
  double sigma;
};
inline constexpr std::array<TensioneFerro, 4> kTensioniFerro = {
    {{"Fe B 22 k", 1200}, {"Fe B 32 k", 1600}, {"Fe B 38 k", 2200}, {"Fe B 44 k", 2600}}};
inline constexpr std::array kTipiDiFerro = {"Fe B 38 k", "Fe B 44 k"};  // offered

// Concrete of a class; a class that is not listed has 1 everywhere.
struct ParametriCls {
  std::string_view classe;
  double ridotta = 1;  // 0.7 of the allowed stress of simple bending
  double novanta = 1;  // 0.9 of it
  double tauc0 = 1;
};
inline constexpr std::array<ParametriCls, 4> kClassiCls = {{{"250", 59.5, 76.5, 5.33},
                                                            {"300", 68.25, 87.75, 6.0},
                                                            {"350", 77, 99, 6.67},
                                                            {"400", 85.75, 110.25, 7.33}}};
// Up to this thickness of the upper slab, cm, concrete has its reduced stress.
inline constexpr double kSolettinaSottile = 4.0;
// Up to this allowable stress steel counts as smooth bars, which hold less by bond.
inline constexpr double kTensioneFerriLisci = 1600;

// ---------------------------------------------------------------- bars

struct Tondino {
  double diametro;  // mm
  double area;      // cmq
};
inline constexpr std::array<Tondino, 7> kTondini = {
    {{6, 0.28}, {8, 0.5}, {10, 0.79}, {12, 1.13}, {14, 1.54}, {16, 2.01}, {18, 2.54}}};

// What can be asked for each kind of bar: empty for the automatic choice, "0" for none.
inline constexpr std::array kDiametriFerri = {"", "0", "6", "8", "10", "12", "14", "16", "18"};
inline constexpr std::size_t kGeneriFerri = 5;
inline constexpr std::size_t kDiametriFinoA16 = 8;  // items of the kinds without 18 mm

// ---------------------------------------------------------------- coefficients of the moments

inline constexpr std::array kCoefficientiIncastro = {"1/8",  "1/10", "1/12", "1/14", "1/16",
                                                     "1/18", "1/20", "1/24", "1/36"};
inline constexpr std::array kCoefficientiMezzeria = {"1/8", "1/10", "1/12", "1/14", "1/16", "1/24"};

}  // namespace orm
