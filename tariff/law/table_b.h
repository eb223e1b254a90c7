// Table B: shares of the single services in the whole one.
//
// Source: Tabella B annexed to Legge 2-3-1949 n. 143 (Gazzetta Ufficiale 19-4-1949 n. 90), art. 19,
// letters a to l: the first six belong to the design, the last four to the supervision of the
// works. The same in all tariff periods.
// Unit: parts of the whole; each row adds up to 1.
// Oddities: class 5 alone has a share h. Categories without a row of their own in class 1 count as
// e; elsewhere but in class 7 the category does not matter.
#pragma once

#include <array>
#include <string_view>

namespace orm {

inline constexpr std::string_view kLettereTabellaB = "abcdefghil";
inline constexpr std::size_t kServiziProgettoTabellaB = 6;
inline constexpr std::array<const char*, 10> kPrestazioniTabellaB = {
    "progetto di massima",
    "preventivo sommario",
    "progetto esecutivo",
    "preventivo particolareggiato",
    "particolari costruttivi e decorativi",
    "capitolati e contratti",
    "direzione dei lavori",
    "prove d'officina",
    "assistenza al collaudo",
    "liquidazione"};

struct RigaTabellaB {
  std::string_view chiave;  // works, as in class_rows.h
  std::array<double, 10> aliquote;
};

// The first row that fits counts.
inline constexpr std::array<RigaTabellaB, 12> kTabellaB = {{
    {"1abcd", {0.10, 0.02, 0.25, 0.10, 0.15, 0.03, 0.25, 0, 0.03, 0.07}},
    {"1fg", {0.08, 0.02, 0.28, 0.08, 0.04, 0.05, 0.35, 0, 0.03, 0.07}},
    {"1", {0.12, 0.02, 0.28, 0.08, 0.20, 0.03, 0.20, 0, 0.02, 0.05}},
    {"23", {0.12, 0.03, 0.22, 0.10, 0.08, 0.10, 0.15, 0, 0.15, 0.05}},
    {"4", {0.08, 0.02, 0.18, 0.07, 0.05, 0.10, 0.20, 0, 0.20, 0.10}},
    {"5", {0.12, 0.03, 0.30, 0.07, 0.08, 0, 0.15, 0.12, 0.13, 0}},
    {"6", {0.07, 0.03, 0.15, 0.12, 0.10, 0.08, 0.25, 0, 0.05, 0.15}},
    {"7a", {0.04, 0.01, 0.15, 0.05, 0.15, 0.10, 0.30, 0, 0.05, 0.15}},
    {"7b", {0.055, 0.015, 0.135, 0.045, 0.15, 0.10, 0.30, 0, 0.05, 0.15}},
    {"7c", {0.07, 0.02, 0.12, 0.04, 0.15, 0.10, 0.30, 0, 0.05, 0.15}},
    {"8", {0.10, 0.03, 0.15, 0.05, 0.12, 0.10, 0.25, 0, 0.05, 0.15}},
    {"9", {0.07, 0.03, 0.20, 0.05, 0.20, 0.10, 0.20, 0, 0.10, 0.05}},
}};

}  // namespace orm
