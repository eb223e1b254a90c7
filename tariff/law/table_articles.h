// The parts of a fee that single articles of the tariff set.
//
// Source: Legge 2-3-1949 n. 143 (Gazzetta Ufficiale 19-4-1949 n. 90), at the articles named.
// Unit: parts of 1; notes print them with two decimals.
#pragma once

namespace orm {

// Art. 17: surveillance, of the aliquot of supervision.
inline constexpr double kSorveglianza = 0.50;
// Art. 18, and 23-b for the updating of prices: the increase for a part of the services.
inline constexpr double kIncaricoParziale = 0.25;
// Art. 19-f: revision of stability calculations, of the aliquot of the detailed design.
inline constexpr double kRevisioneCalcoli = 0.20;
// Art. 23: updating of prices, by percentages or by new analyses, of the aliquot of the estimate.
inline constexpr double kAggiornamentoSemplice = 0.20;
inline constexpr double kNuoveAnalisi = 0.40;
// Variation reports, of the design fee.
inline constexpr double kPerizie = 0.75;
// Revision of prices: the first of the second, of the fee of accounting.
inline constexpr double kRevisionePrezzi = 0.20, kRevisionePrezziSu = 0.75;
// Revision of the accounts at a testing: the most that it pays, of the fee without compensations.
inline constexpr double kMassimoRevisioneContabile = 0.40;

}  // namespace orm
