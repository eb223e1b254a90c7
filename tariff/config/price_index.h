// Revaluation by the official index of consumer prices (ISTAT, families of workers and employees,
// without tobacco), kept in IND.CFG.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "runtime/explanation/conto.h"
#include "runtime/folder.h"

namespace orm {

inline constexpr const char* kFileIndici = "IND.CFG";

// A year's twelve indices, all years on one base; 0: not published yet.
struct IndiciAnno {
  std::int16_t anno = 0;
  std::array<double, 12> mesi{};
};

// IND.CFG: a count (1 to 21) and a note, then a line for each year. A file that is absent, short,
// has another count, a year twice or an index below 0 is a RuntimeFailure with its place.
// `nota` receives what the first line says of them.
std::vector<IndiciAnno> CaricaIndennitaCfg(const WorkFolder& folder, std::string* nota = nullptr);

// The month whose index counted, and what the file says of itself.
struct LetturaIndici {
  int mese = 0, anno = 0;
  std::string nota = {};
};

// The indices of a folder; the file is opened when a percentage is asked for.
class IndiciFoi {
 public:
  explicit IndiciFoi(WorkFolder folder) : folder_(std::move(folder)) {}

  // Percent by which prices rose from January 1993 to a month; beyond the last one published its
  // index counts. A month or year that the file cannot answer is a RuntimeFailure.
  Conto PercentualeRivalutazione(int mese, int anno, LetturaIndici* lettura = nullptr) const;
  // Why the percentage cannot be had, in Italian; empty when it can.
  std::string Obiezione(int mese, int anno) const;

 private:
  WorkFolder folder_;
};

}  // namespace orm
