// What the explanations of a note say of a figure that a print has cut.
#pragma once

#include <string>

#include "runtime/explanation/explanation.h"

namespace orm {

// The step of a figure that is shown cut, by FormattaNumero, and reckoned with as it is; `dopo`
// stands behind it on the line, "%".
Passaggio Mostrato(Passaggio passo, int decimali, const std::string& dopo = "");

// A cut that a reader of the 15 digits of a report notices.
bool Toglie(const Taglio& taglio);

// Adds what a reader would not expect of a cut: a tail of nines, a tail that stays.
void AnnotaTaglio(const Taglio& taglio, std::vector<std::string>& note);

// A number that stands bare on its line, "120,5".
std::string CifraNuda(double valore);

}  // namespace orm
