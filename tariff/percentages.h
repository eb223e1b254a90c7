// Percentages of the tariff as notes take them: of amounts in Euro, and cut to what they print.
//
// Percentages are in percent. An amount that falls between two ranges of a rule leaves the output
// as it was.
#pragma once

#include <string>
#include <string_view>

#include "tariff/criteria.h"
#include "tariff/law/readings.h"

namespace orm {

// Whole Lire as which an amount in Euro goes to Table A and to the curve of 2001, rounded to the
// nearest.
double LireDiTabella(double euro);

// Both tables for an amount in Euro.
void PercentualeTabellaADaEuro(double importo, int periodo, std::string_view classe,
                               std::string_view categoria, double& percentuale);
void PercentualeTabellaNuovaDaEuro(double importo, std::string_view classe,
                                   std::string_view categoria, double& percentuale);

// Decimals that a percentage is printed with, and cut to: those of the criteria (`criterio`) when
// they are not 0, otherwise by the amount in Lire.
void DecimaliPercentuale(double importo, int& decimali, int criterio);
// Why there are so many, in Italian.
std::string MotivoDecimali(int decimali, int criterio);

// Percentage of Table A cut to its decimals, and its text, "4,36916%" ("0 %" for an amount of 0):
// fees are reckoned with the cut one, so that a reader can check them on the printed figures.
void StringaPercentualeTabellaA(double& importo, int periodo, std::string_view classe,
                                std::string_view categoria, const Criteri& criteri,
                                double& percentuale, std::string& testo,
                                LetturaTabella* lettura = nullptr);

}  // namespace orm
