// The steps of the accessory compensations, kept in CAC.CFG, which the user may edit: a count (1 to
// 30) and a note, then for each step an amount in Lire, a percentage and a note.
#pragma once

#include <string>
#include <utility>

#include "runtime/folder.h"
#include "tariff/law/readings.h"

namespace orm {

inline constexpr const char* kFileCompensi = "CAC.CFG";

// The steps of a folder; the file is opened when a percentage is asked for.
class ScaglioniCompensi {
 public:
  explicit ScaglioniCompensi(WorkFolder folder = WorkFolder()) : folder_(std::move(folder)) {}

  // Percentage at an amount in Lire. Between two steps it is interpolated, beyond either end it
  // stays; an amount of 0 gives 0. A file that is absent, short, has another count or amounts that
  // fall is a RuntimeFailure. `lettura` receives the two steps; at either end both are that one;
  // `nota` what the file's first line says of them.
  double PercCompensiAccessoriCfg(double importo, Interpolazione* lettura = nullptr,
                                  std::string* nota = nullptr) const;

 private:
  WorkFolder folder_;
};

}  // namespace orm
