// Look-ups of the truss-joist slab: materials, blocks, coefficients, self weight, least height.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "structures/truss_slab/tables.h"

namespace orm {

double TensioneDiFerro(std::string_view tipo);  // 1 for a steel that is not listed
ParametriCls ParametriDiCls(std::string_view classe);
std::vector<std::string> NomiClassiCls();
double PesoLaterizio(std::string_view blocco);
double AltezzaBlocco(std::string_view blocco);  // cm, the number behind the last blank
double ParteDopoBarra(std::string_view testo);  // 12 of "1/12"; 0 where there is none

// kg/mq, rounded up to 5.
double PesoProprioSolaio(const ModuloSolaio& modulo, double solettina, std::string_view blocco);

// True when a floor of total height H is lower than the law wants for the clear span.
bool AltezzaInsufficiente(double luce, double H);

}  // namespace orm
