// What was agreed with the client about the sum of a fee note.
#pragma once

#include <cstdint>
#include <string>

namespace orm {

// The closing values of a fee note, the last line of its data file.
struct Chiusura {
  double PercDiRiduzione = 0;              // percent, 0 = none
  double Acconti = 0;                      // in the currency of the mode
  std::string TipoRiduzione;               // "CONCORDATA" or empty (Art. 4 comma 12bis L. 155/89)
  std::int16_t ApplicazioneRiduzione = 1;  // 1 fees and compensations, 2 fees, 3 compensations
};

}  // namespace orm
