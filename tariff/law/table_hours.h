// Fees by time (vacazioni).
//
// Source: art. 4 of Legge 2-3-1949 n. 143 (Gazzetta Ufficiale 19-4-1949 n. 90) at the rates of
// D.M. 3-9-1997 n. 417. Unit: Lire an hour.
#pragma once

namespace orm {

inline constexpr double kVacazioneProfessionista = 110000;
inline constexpr double kVacazioneAiutoIscritto = 73500;  // an assistant who is a member himself
inline constexpr double kVacazioneAiutoDiConcetto = 55000;

// Hours for each page of the accounts that a testing revises.
inline constexpr double kOrePerFacciata = 0.25;

}  // namespace orm
