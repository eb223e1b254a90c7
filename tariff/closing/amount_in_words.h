// Amounts in Italian words.
#pragma once

#include <cstdint>
#include <string>

namespace orm {

// "milleduecentotrentaquattro/50": whole part in words without blanks, cents in digits. `importo`
// is cut to its cents. 0 is "zero/0"; below 1 there are no words before the bar. From one thousand
// thousand millions on there are none at all: a RuntimeFailure.
void ImportoInLettere(std::string& testo, double& importo);

// Words of a number below 1000, empty for 0. Any other is a RuntimeFailure.
std::string CentinaioInLettere(std::int16_t n);

}  // namespace orm
