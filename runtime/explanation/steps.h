// Steps of an explanation as a calculation writes them down while it goes.
#pragma once

#include <string>
#include <string_view>

#include "runtime/explanation/conto.h"
#include "runtime/explanation/explanation.h"

namespace orm {

// A step with its sum; its result as a plain number, with which the next steps go on.
Conto Annota(Catena& passi, std::string regola, const Conto& conto, std::string unita);

// A step of words alone.
Passaggio PassoDiParole(std::string regola);

// "tabella CAC.CFG della cartella": one that the person keeps, with what its own note says of where
// it is from.
std::string TabellaPersonale(std::string_view file, std::string_view nota);

// A step whose result is shown rounded, as FormatPattern rounds by `modello`.
Passaggio PassoMostrato(std::string regola, std::string conto, double risultato, std::string unita,
                        const char* modello);

}  // namespace orm
