// The unit loads that the load dialogs offer. Where no decree is named the figures are customary
// values of Italian handbooks of building, to be taken with judgement.
#pragma once

#include <array>

namespace orm {

// A choice: its words, and its load; where the person gives the load, the name of the field.
struct VoceCarico {
  const char* nome;
  double carico;
  const char* campo = nullptr;
};

// ---------------------------------------------------------------- permanent loads, kg/mq

inline constexpr std::array<VoceCarico, 17> kVociPavimento = {{
    {"ASFALTO  ( 18 mm )", 40},
    {"ASFALTO  ( 40 mm )", 85},
    {"GRES  ( 8/11   mm )", 60},
    {"GRES  ( 12/15 mm )", 70},
    {"GRES  ( 16/20 mm )", 80},
    {"GRES  ( 21/25 mm )", 95},
    {"PARQUET", 25},
    {"LINOLEUM", 10},
    {"MATTONELLE in cemento ", 85},
    {"MARMETTE in graniglia", 60},
    {"PIANELLE ( 15 mm )", 65},
    {"PIANELLE  (35 mm )", 100},
    {"PIETRINI in cemento ( 25 mm )", 100},
    {"PIETRINI in porfido    ( 40 mm )", 145},
    {"Pavimenti alla VENEZIANA ( 50 mm )", 110},
    {"Pavimenti in MARMO ( 30 mm )", 120},
    {"Altro tipo di pavimentazione", 0, "cdPavimento"},
}};

inline constexpr std::array<VoceCarico, 3> kVociImpermeabilizzazione = {{
    {"Guaina bituminosa multistrato", 10},
    {"Asfalto con inerti ( 18-20 mm)", 40},
    {"Altra Impermeabilizzazione", 0, "cdImper"},
}};

inline constexpr std::array<VoceCarico, 9> kVociManto = {{
    {"Tegole curve(coppi) a due strati", 60},
    {"Tegole curve con sottoposto tavellonato forato", 95},
    {"Tegole piane ( marsigliesi )", 45},
    {"Tegole piane con sottoposto tavellonato forato", 80},
    {"Lamiere di ferro, ondulate e zincate ( 1 mm.)", 12},
    {"Lamiere di alluminio, ondulate e zincate ( 1 mm.)", 5},
    {"Lastre ondulate in cemento fibroso", 20},
    {"Lastre traslucide di resina, ondulate o nervate", 10},
    {"Altro tipo di manto", 0, "cdManto"},
}};

inline constexpr std::array<VoceCarico, 7> kVociSoffitto = {{
    {"Intonaco semplice", 30},
    {"Intonaco su rete metallica", 45},
    {"Tavelline con intonaco", 60},
    {"Lastre di cartongesso", 15},
    {"Pannelli in fibra minerale", 10},
    {"Perlinato in legno", 15},
    {"Altro tipo di soffitto", 0, "cdSoffitto"},
}};

inline constexpr double kPesoMassettoPerCm = 20;  // kg/mq for each cm of screed

// Snow on the ground of the two zones, kg/mq: customary values after D.M. 16-1-1996.
inline constexpr std::array<VoceCarico, 2> kZoneNeve = {{{"Zona I", 90}, {"Zona II", 60}}};

// ---------------------------------------------------------------- service loads, kg/mq
// D.M. 16-1-1996, "Norme tecniche relative ai criteri generali per la verifica di sicurezza delle
// costruzioni e dei carichi e sovraccarichi", table of the service loads of buildings.

inline constexpr std::array<VoceCarico, 7> kVociSovraccarichi = {{
    {"Ambienti non suscettibili di affollamento (locali di abitazione e relativi servizi, "
     "alberghi, uffici non aperti al pubblico) e relativi terrazzi a livello praticabili",
     200},
    {"Ambienti suscettibili di affollamento (ristoranti,caffè, banche, ospedali,uffici aperti al "
     "pubblico, caserme) e relativi terrazzi a livello praticabili",
     300},
    {"Ambienti suscettibili di grande affollamento (sale per convegni, cinema, teatri, chiese, "
     "negozi, tribune con posti fissi) e relativi terrazzi a livello praticabili",
     400},
    {"Sale da ballo, palestre, tribune libere, aree di vendita con esposizione diffusa (mercati, "
     "grandi magazzini, librerie, ecc.) e relativi terrazzi a livello praticabili, balconi e scale",
     500},
    {"Balconi, ballatoi e scale comuni (esclusi quelli pertinenti alla Categoria precedente)", 400},
    {"Sottotetti accessibili (per sola manutenzione)", 100},
    {"Archivi, biblioteche, magazzini, depositi, laboratori, officine e simili: da valutarsi "
     "secondo il caso",
     0, "cdArchivi"},
}};

inline constexpr std::array<VoceCarico, 6> kVociCoperture = {{
    {"Coperture non praticabili", 50},
    {"Coperture accessibile cat 1", 200},
    {"Coperture accessibile cat 2", 300},
    {"Coperture accessibile cat 3", 400},
    {"Coperture accessibile cat 4", 500},
    {"Coperture speciali ( impianti, eliporti, altri) :secondo il caso", 0, "cdCopertura"},
}};

inline constexpr std::array<VoceCarico, 2> kVociRimesse = {{
    {"per autovetture di peso a pieno carico fino a 30 qli", 250},
    {"per transito automezzi di peso superiore a 30 qli", 0, "cdRimesse"},
}};

// ---------------------------------------------------------------- edge of a cantilever

inline constexpr std::array<VoceCarico, 5> kVociParapetto = {{
    // kg/ml
    {"Ringhiera in ferro", 30},
    {"Parapetto in muratura di mattoni ( 8 cm )", 110},
    {"Parapetto in calcestruzzo ( 8 cm )", 200},
    {"Balaustra in pietra", 250},
    {"Altro tipo di parapetto", 0, "cdParapetto"},
}};

// Thrust on the handrail, kg x ml/ml (D.M. 16-1-1996, horizontal line loads).
inline constexpr std::array<VoceCarico, 4> kVociSpinta = {{
    {"Locali d'abitazione e ambienti suscettibili di affollamento", 100},
    {"Ambienti di grande affollamento, balconi e scale comuni", 150},
    {"Sale da ballo, palestre, tribune libere", 300},
    {"Altro tipo di spinta", 0, "cdSpinta"},
}};

// ---------------------------------------------------------------- filling, seismic action

inline constexpr double kPesoClsNormale = 2400;  // kg/mc

struct VoceSismica {
  const char* nome;
  double coefficiente;
};
// Coefficient of protection I (D.M. 16-1-1996, rules for buildings in seismic zones).
inline constexpr std::array<VoceSismica, 3> kVociProtezione = {{
    {"Opera di importanza primaria per le necessità della protezione civile   I= 1,4", 1.4},
    {"Opere con particolare rischio per le caratteristiche d'uso  I= 1,2", 1.2},
    {"Opere normali  I= 1,0", 1.0},
}};
// Coefficient s by which service loads count, same rules.
inline constexpr std::array<VoceSismica, 3> kVociRiduzione = {{
    {"Locali d'abitazione, uffici non aperti al pubblico, alberghi, coperture, balconi", 0.33},
    {"Locali suscettibili di affollamento ( uffici aperti al pubblico, ristoranti,caffè, banche, "
     "aule scolastiche, caserme, ospedali ecc.)",
     0.5},
    {"Locali suscettibili di grande affollamento ( sale per convegni, cinema, teatri, chiese, "
     "negozi, tribune, archivi, depositi ecc.)",
     1.0},
}};

}  // namespace orm
