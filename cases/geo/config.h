// The percentages of geotechnical services, kept in GEO.CFG, which the user may edit.
//
// Each line ends with one further field, ignored: the names of the five periods; the count N of the
// steps and their rising amounts in Lire; then for each period and each of the four subclasses the
// first percentage on a line and the others three to a line.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "runtime/folder.h"
#include "tariff/law/readings.h"

namespace orm {

inline constexpr const char* kFileGeo = "GEO.CFG";
inline constexpr std::size_t kPeriodiGeo = 5;
inline constexpr std::size_t kSottoclassiGeo = 4;

struct TabelleGeo {
  std::array<std::string, kPeriodiGeo> NomePeriodo, NotaPeriodo;
  std::vector<double> Passo;
  std::array<std::vector<double>, kSottoclassiGeo> Y;  // of the period asked for

  // Percent of an amount in Lire above 0; `sottoclasse` from 0 to 3. The first step repeats the
  // second, and the percentage is flat below it; above the last it falls on, but never below 0.
  // `lettura` receives the steps, equal where it is flat.
  double Percentuale(std::size_t sottoclasse, double lire, Interpolazione* lettura = nullptr) const;
};

// `periodo` 1 to 5, or 0 for names and steps alone. A file that is absent, short, or holds what
// cannot be (fewer than 2 steps, amounts that do not rise, negative percentages) is a
// RuntimeFailure with its place; what stands behind the block asked for is not looked at.
TabelleGeo LeggiTabelleGeo(const WorkFolder& folder, int periodo);

// The file for a calculation, which sees no folder: names and steps, read at once, and the tables
// of a period, read when they are asked for.
class TariffaGeo {
 public:
  explicit TariffaGeo(WorkFolder folder)
      : testata(LeggiTabelleGeo(folder, 0)), folder_(std::move(folder)) {}

  const TabelleGeo testata;
  TabelleGeo Periodo(int periodo) const { return LeggiTabelleGeo(folder_, periodo); }

 private:
  WorkFolder folder_;
};

}  // namespace orm
