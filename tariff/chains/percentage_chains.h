// How a percentage of the law came about, as steps of an explanation. They are written from what
// the look-up itself found.
#pragma once

#include <string>
#include <string_view>

#include "runtime/explanation/explanation.h"
#include "tariff/law/readings.h"

namespace orm {

// "classe I, categoria c"; classes without categories alone.
std::string ClasseInParole(std::string_view classe, std::string_view categoria);

// "L'importo di L. 120 sta tra L. 100 (6,44 %) e L. 150 (5,796 %); tra le due percentuali", for
// what is done with them to follow.
std::string TraIPassi(const Interpolazione& passi);

// "y0 - (y0 - y1) x (x - x0) / (x1 - x0)", both percentages times `aumenti` where that is not
// empty.
std::string ContoInterpolazione(const Interpolazione& passi, const std::string& aumenti = "");

// Table A: the rises of the decrees, the two steps and the straight line between them.
Catena CatenaTabellaA(const LetturaTabella& lettura, int periodo, std::string_view classe,
                      std::string_view categoria);
// The curve of 2001, of works of `lire`; its amount may be one of its ends.
Catena CatenaTabellaNuova(const LetturaCurva& lettura, double lire, std::string_view classe,
                          std::string_view categoria);
Catena CatenaTabellaC(const LetturaTabella& lettura, int periodo);

}  // namespace orm
