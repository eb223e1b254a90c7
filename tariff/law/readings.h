// What a look-up in a table found: the numbers that a percentage was reckoned with, for those who
// tell how it came about.
#pragma once

namespace orm {

// A straight line between two steps. At the ends of a table both percentages may be one.
struct Interpolazione {
  double x = 0;           // the amount
  double x0 = 0, x1 = 0;  // the steps below and above it
  double y0 = 0, y1 = 0;  // their percentages
};

// Of Table A or C: percentages of 1965, before the rises.
struct LetturaTabella {
  Interpolazione passi;
  bool ultima = false;     // beyond the last step: its percentage is y1
  bool oltre = false;      // with the rises that hold beyond the end of the tables
  double percentuale = 0;  // what comes back, not cut
};

// Of the curve of 2001: 10^p * X^b + q.
struct LetturaCurva {
  double X = 0, b = 0, p = 0, q = 0;
  bool trovata = false;
  double percentuale = 0;
};

}  // namespace orm
