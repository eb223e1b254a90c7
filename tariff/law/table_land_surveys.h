// The rates of surveys of lands in plan and height.
//
// Source: arts. 33 and 34 of Legge 2-3-1949 n. 143 (Gazzetta Ufficiale 19-4-1949 n. 90) at the
// figures of D.M. 11-6-1987; the hours of the work in the field are those of art. 4, table_hours.h.
// Unit: Lire for an hectare, for a parcel.
// Oddities: up to the limit, that very extent included, the hours alone are paid.
#pragma once

#include <array>

namespace orm {

inline constexpr std::array<const char*, 3> kTerreniRpa = {
    "NUDI O POCO ALBERATI", "FRASTAGLIATI, PALUDOSI", "BOSCHI, VIGNETI, FRUTTETI"};
inline constexpr std::array<const char*, 3> kGiacitureRpa = {"IN PIANURA", "IN COLLINA",
                                                             "IN MONTAGNA"};
inline constexpr std::array<const char*, 2> kScaleRpa = {"1:1000", "1:2000"};

// Who works in the field by the hour.
inline constexpr std::array<const char*, 3> kOreRpa = {"PROFESSIONISTA", "AIUTO ISCRITTO ALL'ALBO",
                                                       "AIUTO DI CONCETTO"};

// By land, position and scale.
inline constexpr double kTariffeTerreni[3][3][2] = {
    {{2759.48, 2299.56}, {3679.30, 2759.48}, {4599.12, 3679.30}},
    {{3679.30, 3219.38}, {4599.12, 3679.30}, {5518.94, 4599.12}},
    {{4599.12, 4139.21}, {5518.94, 4599.12}, {6438.76, 5518.94}},
};

// Parcels with their boundaries and crops, under 500 mq and above.
inline constexpr double kTariffaParticellaPiccola = 919.78, kTariffaParticellaGrande = 459.85;

// Hectares in all (art. 34).
inline constexpr double kEttariAVacazione = 10;

}  // namespace orm
