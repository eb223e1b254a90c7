// Steps of an explanation as a calculation writes them down while it goes.
#pragma once

#include <string>

#include "runtime/explanation/conto.h"
#include "runtime/explanation/explanation.h"

namespace orm {

// A step with its sum; its result as a plain number, with which the next steps go on.
Conto Annota(Catena& passi, std::string regola, const Conto& conto, std::string unita);

// A step of words alone.
Passaggio PassoDiParole(std::string regola);

// A step whose result is shown rounded, as FormatPattern rounds by `modello`.
Passaggio PassoMostrato(std::string regola, std::string conto, double risultato, std::string unita,
                        const char* modello);

}  // namespace orm
