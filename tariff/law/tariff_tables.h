// Looking up the tables of the tariff.
//
// Amounts are in Lire, percentages in percent, aliquots in parts of 1. Periods are 1 to 5 for the
// decrees from 1965 to 1987 and 6 for that of 2001, which has a curve of its own. An amount that
// falls between two ranges of a rule leaves the output as it was.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/explanation/conto.h"
#include "tariff/law/readings.h"

namespace orm {

// Table A by linear interpolation between its steps. `importo` becomes its absolute value. A class
// or category without a row gives 0, and so does period 6. An amount of 0 has no step below it: a
// RuntimeFailure. `lettura`, here and below, receives what was found.
void PercentualeTabellaA(double& importo, int periodo, std::string_view classe,
                         std::string_view categoria, double& percentuale,
                         LetturaTabella* lettura = nullptr);

// The curve of D.M. 4-4-2001. `importo` becomes its absolute value. An unknown class or category,
// and an amount in the Lira above 50 or above 1,000 million, leave `percentuale` as it was.
void PercentualeTabellaNuova(double& importo, std::string_view classe, std::string_view categoria,
                             double& percentuale, LetturaCurva* lettura = nullptr);

// Table C, of accounting and testing. 0 gives 0; an amount below 0 is a RuntimeFailure.
void PercentualeTabellaContabilita(int periodo, double importo, double& percentuale,
                                   LetturaTabella* lettura = nullptr);

// The rises of the decrees up to a period's one, as they are multiplied, up to the end of the
// tables or beyond it; those of 1 are left out.
Conto AumentiFinoA(int periodo, bool oltre);

// Ten values, one for each letter from a to l, with the indices 1 to 10; element 0 is not used.
using Aliquote = std::array<double, 11>;

// Table B: the row of the class, and the sums of selezione[i] * aliquote[i] of the design (1 to 6)
// and of the supervision (7 to 10), without those of 0. An unknown class leaves `aliquote` as they
// were.
void TabellaBAliquote(std::string_view classe, std::string_view categoria,
                      const Aliquote& selezione, Aliquote& aliquote, Conto& sommaProgettazione,
                      Conto& sommaDirezione);

// The aliquot of one letter of Table B; 0 where it has no row.
double AliquotaTabellaB(std::string_view classe, std::string_view categoria, char lettera);
// Updating of prices (art. 23): letter d, the detailed estimate. Class 7 in a category that Table B
// does not know counts as c.
double AliquotaAggiornamento(std::string_view classe, std::string_view categoria);
// Revision of stability calculations (art. 19-f): the detailed design, letter c of Table B or f of
// the tables of 2001. Unlike there, categories that the law does not name have none, 0.
double AliquotaRevisioneCalcoli(std::string_view classe, std::string_view categoria,
                                bool tabelle2001);

// The column of Tables B and B1 of D.M. 4-4-2001; nothing for works that they do not know.
std::optional<std::size_t> ColonnaTabelle2001(std::string_view classe, std::string_view categoria);

// "D.M. 25-febbraio-1965", and the same with the dates of validity.
std::string NomePeriodoTariffario(int periodo);
std::string NomePeriodoTariffarioEsteso(int periodo);
// "D.M. 11-6-1987".
std::string SiglaDecreto(int periodo);

// Classes "5" and "8" have no categories.
bool SenzaCategorie(std::string_view classe);
// "1/a"; the class alone for those without categories.
std::string StringaClasseCategoria(std::string_view classe, std::string_view categoria);

}  // namespace orm
