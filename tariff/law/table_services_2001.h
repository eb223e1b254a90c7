// Tables B and B1: the shares of the services of design and supervision of public works.
//
// Source: Tables B and B1 annexed to D.M. 4-4-2001, Gazzetta Ufficiale 26-4-2001 n. 96.
// Unit: fractions of the whole fee. Columns: class 1 in categories a to d, 1/e, 1/f, 1/g, then
// classes 2 to 9. Class 1 has no other category.
// Oddities: o4 in class 3 and o5 in 1/e are 0.15, ten times their row, and stay so. The share of q
// goes with the choice of p.
#pragma once

#include <array>
#include <string_view>

namespace orm {

enum class FaseEsl { Preliminare, Definitivo, Esecutivo, Direzione };

struct ColonnaTabelleB {
  std::string_view chiave;  // works, as in class_rows.h
};
inline constexpr std::array<ColonnaTabelleB, 12> kColonneTabelleB = {
    {{"1abcd"}, {"1e"}, {"1f"}, {"1g"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"}, {"7"}, {"8"}, {"9"}}};

struct ServizioEsl {
  std::string_view codice;
  std::string_view scelta;  // the code whose choice counts the share
  FaseEsl fase;
  std::array<double, kColonneTabelleB.size()> aliquote;
};

// clang-format off
inline constexpr std::array<ServizioEsl, 11> kTabellaBEsl = {{
    {"a",  "a",  FaseEsl::Preliminare, {0.09, 0.10, 0.07, 0.07, 0.11, 0.11, 0.07, 0.11, 0.08, 0.07, 0.07, 0.10}},
    {"b",  "b",  FaseEsl::Preliminare, {0.01, 0.01, 0.01, 0.01, 0.01, 0.01, 0.01, 0.01, 0.01, 0.01, 0.01, 0.01}},
    {"c",  "c",  FaseEsl::Definitivo,  {0.23, 0.27, 0.16, 0.16, 0.26, 0.16, 0.20, 0.22, 0.22, 0.20, 0.15, 0.24}},
    {"d",  "d",  FaseEsl::Definitivo,  {0.01, 0.01, 0.01, 0.01, 0.01, 0.02, 0.01, 0.01, 0.01, 0.01, 0.02, 0.01}},
    {"e",  "e",  FaseEsl::Definitivo,  {0.07, 0.07, 0.04, 0.04, 0.07, 0.08, 0.06, 0.04, 0.06, 0.05, 0.06, 0.06}},
    {"f",  "f",  FaseEsl::Esecutivo,   {0.05, 0.06, 0.16, 0.16, 0.04, 0.15, 0.04, 0.06, 0.04, 0.04, 0.10, 0.06}},
    {"g",  "g",  FaseEsl::Esecutivo,   {0.13, 0.15, 0.05, 0.05, 0.10, 0.05, 0.06, 0.10, 0.08, 0.07, 0.05, 0.12}},
    {"h",  "h",  FaseEsl::Esecutivo,   {0.04, 0.04, 0.04, 0.04, 0.03, 0.05, 0.03, 0.03, 0.03, 0.03, 0.06, 0.03}},
    {"i",  "i",  FaseEsl::Esecutivo,   {0.02, 0.02, 0.01, 0.01, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.03, 0.02}},
    {"l",  "l",  FaseEsl::Direzione,   {0.32, 0.24, 0.42, 0.42, 0.32, 0.32, 0.45, 0.38, 0.42, 0.45, 0.42, 0.32}},
    {"l1", "l1", FaseEsl::Direzione,   {0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.05, 0.02, 0.03, 0.05, 0.03, 0.03}},
}};

inline constexpr std::array<ServizioEsl, 17> kTabellaB1Esl = {{
    {"m",  "m",  FaseEsl::Preliminare, {0.03, 0.02, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03}},
    {"n",  "n",  FaseEsl::Preliminare, {0.07, 0.07, 0.07, 0.07, 0.07, 0.07, 0.07, 0.07, 0.07, 0.07, 0.07, 0.07}},
    {"o1", "o1", FaseEsl::Preliminare, {0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03}},
    {"o2", "o2", FaseEsl::Preliminare, {0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015}},
    {"o3", "o3", FaseEsl::Preliminare, {0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015}},
    {"o4", "o4", FaseEsl::Preliminare, {0.015, 0.015, 0.015, 0.015, 0.015, 0.15, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015}},
    {"o5", "o5", FaseEsl::Preliminare, {0.015, 0.15, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015, 0.015}},
    {"p",  "p",  FaseEsl::Definitivo,  {0.03, 0.03, 0.03, 0.03, 0.01, 0.01, 0.01, 0.01, 0.03, 0.01, 0.01, 0.03}},
    {"q",  "p",  FaseEsl::Definitivo,  {0.07, 0.07, 0.07, 0.07, 0.08, 0.08, 0.08, 0.07, 0.07, 0.07, 0.07, 0.07}},
    {"r1", "r1", FaseEsl::Definitivo,  {0.06, 0.06, 0.06, 0.06, 0.06, 0.06, 0.06, 0.06, 0.06, 0.06, 0.06, 0.06}},
    {"r2", "r2", FaseEsl::Definitivo,  {0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03}},
    {"r3", "r3", FaseEsl::Definitivo,  {0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03}},
    {"r4", "r4", FaseEsl::Definitivo,  {0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03, 0.03}},
    {"s",  "s",  FaseEsl::Esecutivo,   {0.02, 0.02, 0.02, 0.02, 0.03, 0.03, 0.02, 0.03, 0.03, 0.02, 0.02, 0.03}},
    {"l2", "l2", FaseEsl::Direzione,   {0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02}},
    {"l3", "l3", FaseEsl::Direzione,   {0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02, 0.02}},
    {"l4", "l4", FaseEsl::Direzione,   {0.10, 0.10, 0.10, 0.10, 0.10, 0.10, 0.10, 0.10, 0.10, 0.10, 0.10, 0.10}},
}};
// clang-format on

// What the dialogs call the services, in the order of the tables.
inline constexpr std::array<const char*, 11> kDidascalieBase = {
    " a  - Relazioni, planimetrie, schemi grafici",
    " b  - Calcolo sommari spesa",
    " c  - Relazione illustrativa, elaborati grafici per ottenere autorizzazioni",
    " d  - Disciplinare elementi tecnici",
    " e  - Computo metrico estimativo, quadro economico",
    " f  - Relazione generale e specialistiche, elaborati grafici, calcoli esecutivi",
    " g  - Particolari costruttivi e decorativi.",
    " h  - Computo metrico estimativo definitivo, quadro economico, elenco prezzi ed eventuale "
    "analisi, quadro dell'incidenza percentuale della quantità di manodopera",
    " i  - Schema di contratto, capitolato speciale d'appalto, cronoprogramma.",
    " l  - Direzione Lavori, assistenza al collaudo, prove d'officina",
    " l1 - Liquidazione.",
};
inline constexpr std::array<const char*, 17> kDidascalieIntegrative = {
    " m  - Piano economico e finanziario di massima",
    " n  - Capitolato speciale e prestazionale",
    " o1 -  Relazione di indagine geotecnica",
    " o2 -  Relazione di indagine idrologica",
    " o3 -  Relazione di indagine idraulica",
    " o4 -  Relazione di indagine sismica",
    " o5 -  Relazione di indagine archeologica",
    " p  - Studio di inserimento urbanistico",
    " q  - Schema di contratto, capitolato speciale d'appalto",
    " r1  - Relazione di indagine geotecnica",
    " r2 -  Relazione di indagine idrologica",
    " r3 -  Relazione di indagine idraulica",
    " r4 -  Relazione di indagine sismica",
    " s  - Piano di manutenzione dell'opera",
    " l2  - Controllo aggiornamento elaborati di progetto, aggiornamento dei manuali d'uso e "
    "manutenzione",
    " l3 - Coordinamento e supervisione dell'ufficio di direzione lavori",
    " l4 -  Ufficio della direzione lavori, per ogni addetto con qualifica di direttore operativo.",
};

}  // namespace orm
