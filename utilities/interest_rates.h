// TUS.CFG: the official discount rate by periods, kept up to date by the user in a text editor.
#pragma once

#include <string>
#include <vector>

#include "runtime/dates.h"
#include "runtime/folder.h"

namespace orm {

inline constexpr const char* kFileTus = "TUS.CFG";
inline constexpr int kPeriodiTus = 100;  // the most that the table holds

struct PeriodoTus {
  Date InizioPeriodo;     // first day of the rate
  Date FinePeriodo;       // last day of the rate; today for the last period, whatever the file says
  double Tasso = 0;       // percent a year
  std::string nota = {};  // where it is from
};

// In the order of the file, ascending by date, at least one.
using TabellaTus = std::vector<PeriodoTus>;

// File: a line with the number of periods and a heading, then for each period a line with first
// day, last day, rate and a note. A file that is missing, short, without periods, with dates that
// are none, overlap or fall, or with more lines than it announces is a RuntimeFailure.
TabellaTus LeggiTabellaTus(const WorkFolder& folder, const Date& today);

}  // namespace orm
