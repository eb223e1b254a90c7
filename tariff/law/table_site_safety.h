// Duties, aggravating conditions and increments of site safety.
//
// Source: D.Lgs 14-8-1996 n. 494 for the duties; for their fees the agreement of the national
// councils of engineers and architects ("SC1") and D.M. 4-4-2001, Gazzetta Ufficiale 26-4-2001
// n. 96 ("SC2"). Aliquots, least fees and increments are the same in both; the conditions differ.
// Unit: aliquots in parts of 1, least fees in Lire, conditions and increments in percent.
// Oddities: the texts are kept letter by letter as users know them.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "tariff/law/table_periods.h"

namespace orm {

struct PrestazioneSic {
  const char* titolo;      // as the report heads it, with its number
  const char* didascalia;  // as the dialog names it
  double aliquota;
  double minimo;  // Lire
  bool progetto;  // a duty of the design phase, otherwise of the execution
};

inline constexpr std::array<PrestazioneSic, 5> kPrestazioniSic = {{
    {"1 - PRIME INDICAZIONI E PRESCRIZIONI", "PRIME INDICAZIONI E PRESCRIZIONI", 0.02, 400000,
     true},
    {"2 - RESPONSABILE DEI LAVORI IN FASE DI PROGETTO( Artt. 3-6 )",
     "RESPONSABILE DEI LAVORI IN FASE DI PROGETTO", 0.0325, 500000, true},
    {"3 - RESPONSABILE DEI LAVORI IN FASE DI ESECUZIONE( Artt. 3-6 )",
     "RESPONSABILE DEI LAVORI IN FASE DI ESECUZIONE", 0.0175, 500000, false},
    {"4 - COORDINATORE PER LA PROGETTAZIONE ( Art. 4 - comma 1 )",
     "COORDINATORE PER LA PROGETTAZIONE", 0.15, 1500000, true},
    {"5 - COORDINATORE PER L'ESECUZIONE ( Art. 5 - comma 1 )", "COORDINATORE PER LA ESECUZIONE",
     0.25, 2500000, false},
}};

struct CondizioneSic {
  const char* testo;
  double percentuale;
};

inline constexpr std::array<CondizioneSic, 10> kMaggiorazioniSc2 = {{
    {"Lavori che comportano rischio di seppelimento o sprofondamento, di caduta dall'alto se "
     "aggravati dalla natura dell'attività e dei procedimenti o dalle condizioni ambientali in "
     "essere",
     5},
    {"Lavori che espongono i lavoratori a sostanze chimiche o biologiche con particolari rischi "
     "per "
     "la sicurezza e che richiedano specifiche misure ed interventi dei coordinatori",
     5},
    {"Lavori in presenza di radiazioni ionizzanti che esiggono designazione di zone controllate o "
     "sorvegliate e che richiedono specifiche misure ed interventi dei coordinatori",
     5},
    {"Lavori in prossimità di linee elettriche a conduttori nudi in tensione", 5},
    {"Lavori che espongono a rischio di annegamento", 5},
    {"Lavori sotterranei", 5},
    {"Lavori subaquei", 5},
    {"Lavori in cassoni", 5},
    {"Lavori comportanti l'impiego di esplosivi", 5},
    {"Lavori di montaggio o smontaggio di elementi prefabbricati pesanti.", 5},
}};

inline constexpr std::array<CondizioneSic, 5> kMaggiorazioniSc1 = {{
    {"Presenza di scavi oltre 1,50 m. di profondità", 10},
    {"Costruzioni oltre 7,50 m.", 10},
    {"Costruzioni complesse ed articolate ( in pianta e/o elevazione )", 5},
    {"Presenza di particolari attrezzature di cantiere ( gru a ponte, centrali di betonaggio, ecc. "
     ")",
     5},
    {"Particolari condizioni ambientali ( Lavori stradali, Impianti tecnologichi a rete, Centri "
     "Storici, Linee elettriche, falde acquifere, terreni in forte declivio > 30°, Indefinibilità "
     "dei confini del cantiere, ecc. )",
     20},
}};

inline constexpr std::array<CondizioneSic, 3> kIncrementiSc2 = {{
    {"Edifici soggetti a vincolo", 15},
    {"Incremento per adeguamento del Piano e del Fascicolo ( art. 5/1/b )", 25},
    {"Incremento per coordinamento ed organizzazione attività ed informazione ( art. 5/1/c )", 15},
}};
inline constexpr std::array<CondizioneSic, 3> kIncrementiSc1 = {{
    {"Edifici soggetti a vincolo, opere di manutenzione.", 15},
    kIncrementiSc2[1],
    kIncrementiSc2[2],
}};

// What a version of the tariff offers.
struct VersioneSic {
  bool SC2;
  std::span<const CondizioneSic> maggiorazioni, incrementi;
  const char* riquadroMaggiorazioni;
  const char* riquadroPrestazioni;
  int periodo;  // of the tariff
};

inline constexpr VersioneSic kVersioneSc1{false,
                                          kMaggiorazioniSc1,
                                          kIncrementiSc1,
                                          "MAGGIORAZIONI Versione C.N.I e C.N.A.",
                                          "PRESTAZIONI PARZIALI o FASI : Versione C.N.I. e A.",
                                          kPeriodo1987};
inline constexpr VersioneSic kVersioneSc2{true,
                                          kMaggiorazioniSc2,
                                          kIncrementiSc2,
                                          "MAGGIORAZIONI D.M. 4-4-01",
                                          "PRESTAZIONI PARZIALI o FASI : Versione D.M. 4-4-01",
                                          kPeriodo2001};

}  // namespace orm
