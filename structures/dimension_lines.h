// Dimension lines of drawings: a thin line with a tick at each end and a letter beside it.
#pragma once

#include <string>

#include "dialogs/lavagna.h"

namespace orm {

class Quote {
 public:
  // `lettera` is the width of a usual letter in units of the panel, at the font that is set.
  Quote(Lavagna& lavagna, double lettera) : lavagna_(lavagna), lettera_(lettera) {}

  // The name stands above the line, or right of it.
  void Orizzontale(double x1, double x2, double y, const std::string& nome) const;
  void Verticale(double x, double y1, double y2, const std::string& nome) const;
  // A text with its middle at x and its upper edge at y.
  void Centrato(double x, double y, const std::string& testo) const;

 private:
  void Segna() const;
  double Riga() const { return lettera_ * 2.2; }  // height of a line of text

  Lavagna& lavagna_;
  double lettera_;
};

}  // namespace orm
