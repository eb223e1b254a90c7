// Looking up the tables of the tariff.
//
// Amounts are in Lire but for the routines named "DaEuro"; percentages are in percent. Periods are
// 1 to 5 for the decrees from 1965 to 1987 and 6 for that of 2001, which has a curve of its own.
// An amount that falls between two ranges of a rule leaves the output as it was.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "shell/state/run_state.h"

namespace orm {

// Table A by linear interpolation between its steps. `importo` becomes its absolute value. A class
// or category without a row gives 0, and so does period 6. An amount of 0 has no step below it: a
// RuntimeFailure.
void PercentualeTabellaA(double& importo, int periodo, std::string_view classe,
                         std::string_view categoria, double& percentuale);
// The same for an amount in Euro, which goes to the table as whole Lire (rounded to the nearest).
void PercentualeTabellaADaEuro(double importo, int periodo, std::string_view classe,
                               std::string_view categoria, double& percentuale);

// The curve of D.M. 4-4-2001. `importo` becomes its absolute value. An unknown class or category,
// and an amount in the Lira above 50 or above 1,000 million, leave `percentuale` as it was.
void PercentualeTabellaNuova(double& importo, std::string_view classe, std::string_view categoria,
                             double& percentuale);
void PercentualeTabellaNuovaDaEuro(double importo, std::string_view classe,
                                   std::string_view categoria, double& percentuale);

// Table C, of accounting and testing. 0 gives 0; an amount below 0 is a RuntimeFailure.
void PercentualeTabellaContabilita(int periodo, double importo, double& percentuale);

// Ten values, one for each letter from a to l, with the indices 1 to 10; element 0 is not used.
using Aliquote = std::array<double, 11>;

// Table B: the row of the class, and the sums of selezione[i] * aliquote[i] of the design (1 to 6)
// and of the supervision (7 to 10). An unknown class leaves `aliquote` as they were.
void TabellaBAliquote(std::string_view classe, std::string_view categoria,
                      const Aliquote& selezione, Aliquote& aliquote, double& sommaProgettazione,
                      double& sommaDirezione);

// Decimals that a percentage is printed with, and cut to: those of the criteria (`criterio`) when
// they are not 0, otherwise by the amount in Lire.
void DecimaliPercentuale(double importo, int& decimali, int criterio);

// Percentage of Table A cut to its decimals, and its text, "4,36916%" ("0 %" for an amount of 0):
// fees are reckoned with the cut one, so that a reader can check them on the printed figures.
void StringaPercentualeTabellaA(double& importo, int periodo, std::string_view classe,
                                std::string_view categoria, const Criteri& criteri,
                                double& percentuale, std::string& testo);

// "D.M. 25-febbraio-1965", and the same with the dates of validity.
std::string NomePeriodoTariffario(int periodo);
std::string NomePeriodoTariffarioEsteso(int periodo);

// "0,70", "1,10", "1,20", "1,40"; "1,00" for every other number.
std::string CoefficienteInStringa(double coefficiente);

// "1/a"; the class alone for "5" and "8", which have no categories.
std::string StringaClasseCategoria(std::string_view classe, std::string_view categoria);

}  // namespace orm
