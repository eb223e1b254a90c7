// The shares of the chief engineer, kept in INC.CFG, which the user may edit: five lines, each with
// a number and a note.
#pragma once

#include <utility>

#include "runtime/folder.h"

namespace orm {

inline constexpr const char* kFileInc = "INC.CFG";

struct QuoteInc {
  double direzione = 0, assistenza = 0, liquidazione = 0;  // of the aliquots g, i and l
  double tabellaC = 0;                                     // of the certificate's percentage
  double massimoCompensi = 0;                              // percent
};

// The shares of a folder; the file is opened when they are asked for.
class TariffaInc {
 public:
  explicit TariffaInc(WorkFolder folder) : folder_(std::move(folder)) {}

  // A file that is absent, short or holds a negative number is a RuntimeFailure with its place.
  QuoteInc Quote() const;

 private:
  WorkFolder folder_;
};

}  // namespace orm
