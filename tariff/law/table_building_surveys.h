// The rates of surveys of buildings, by kind of drawing and scale.
//
// Source: Table B3.2 annexed to D.M. 4-4-2001, Gazzetta Ufficiale 26-4-2001 n. 96. Art. 3 gives
// them no accessory compensations.
// Unit: Lire for a square metre of plan or elevation, for a cubic metre of section; the fixed part
// for each storey or elevation.
// Oddities: elevations and sections cost the same at any scale. At 1:500 a plan has no fixed part.
#pragma once

#include <array>

namespace orm {

enum class GenereRim { Pianta, Prospetto, Sezione };

inline constexpr std::array<const char*, 6> kScaleRim = {"1:10",  "1:20",  "1:50",
                                                         "1:100", "1:200", "1:500"};

struct TipoElaboratoRim {
  const char* nome;
  GenereRim genere;
  std::array<double, 6> tariffe;  // a plan by its scale, any other the first
  std::array<double, 6> quote;    // fixed, likewise
};

inline constexpr std::array<TipoElaboratoRim, 6> kElaboratiRim = {{
    {"PIANTA semplice",
     GenereRim::Pianta,
     {770, 640, 520, 390, 260, 130},
     {42950, 42950, 42950, 42950, 42950, 0}},
    {"PIANTA complessa",
     GenereRim::Pianta,
     {2060, 1670, 1290, 1030, 640, 390},
     {42950, 42950, 42950, 42950, 42950, 0}},
    {"PROSPETTO semplice", GenereRim::Prospetto, {520}, {42950}},
    {"PROSPETTO complesso", GenereRim::Prospetto, {1720}, {42950}},
    {"SEZIONE semplice", GenereRim::Sezione, {50}, {0}},
    {"SEZIONE complessa", GenereRim::Sezione, {90}, {0}},
}};

// Storeys of the same area beyond the first, of the fee of the first.
inline constexpr double kPianiOltreIlPrimo = 0.75;

// One, two or three surcharges (structures, complex plants, a listed building), of the whole fee:
// each 30 %, and they add up.
inline constexpr std::array<double, 3> kMaggiorazioniRim = {0.30, 0.60, 0.90};

}  // namespace orm
