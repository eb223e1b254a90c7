// The subclasses and the services of geotechnics, and the share of each service in the fee.
//
// Unit: parts of the whole, a row for each subclass; each adds up to 1. a to d belong to the
// design, e and f to the supervision. The percentages that they share stand in GEO.CFG.
// Oddities: the texts are kept letter by letter as users know them.
#pragma once

#include <array>
#include <string_view>

namespace orm {

inline constexpr std::array<const char*, 4> kSottoclassiGeotecniche = {
    "1 - FABBRICATI ED OPERE DI URBANIZZAZIONE", "2 - STRADE E FERROVIE IN PIANURA",
    "3 - STRADE E FERROVIE IN COLLINA O MONTAGNA. FUNIVIE o FUNICOLARI",
    "4 - GALLERIE, AEROPORTI, DIGHE, FRANE, CONSOLIDAMENTI.OPERE IDRAULICHE E DI NAVIGAZIONE"};

inline constexpr std::array<std::array<double, 6>, 4> kQuoteGeo = {{
    {0.05, 0.15, 0.2, 0.4, 0.15, 0.05},
    {0.05, 0.2, 0.15, 0.35, 0.2, 0.05},
    {0.05, 0.2, 0.15, 0.35, 0.2, 0.05},
    {0.05, 0.15, 0.15, 0.4, 0.2, 0.05},
}};

inline constexpr std::string_view kLettereGeo = "abcdef";
inline constexpr std::size_t kServiziProgettoGeo = 4;

// For the accounts with those who make the investigations: a part of their cost.
inline constexpr double kCompensoIndagini = 0.10;

inline constexpr std::array<const char*, 6> kPrestazioniGeo = {
    "INDIVIDUAZIONE DEI PROBLEMI GEOTECNICI, COMPLILAZIONE DEL PROGRAMMA DI INDAGINI E PROVE. "
    "REDAZIONE DEL RELATIVO PREVENTIVO E DEL CAPITOLATO SPECIALE DI APPALTO",
    "SUPERVISIONE NELLO SVOLGIMENTO DEL PROGRAMMA DI INDAGINI E PROVE",
    "ESAME DELE POSSIBILI SOLUZIONI PER LA COSTRUENDA OPERA E CALCOLAZIONI GEOTECNICHE RELATIVE "
    "ALLA SOLUZIONE IN DEFINITIVA PRESCELTA",
    "REDAZIONE DELLA RELAZIONE GEOTECNICA CON I RELATIVI ALLEGATI",
    "CONSULENZA ED ASSISTENZA GEOTECNICA IN FASE DI REALIZZAZIONE DELL'OPERA",
    "ASSISTENZA AL COLLAUDO ED ALLE OPERAZIONI DI LIQUIDAZIONE DEI LAVORI"};

}  // namespace orm
