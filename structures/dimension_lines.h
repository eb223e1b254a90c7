// Dimension lines of drawings: a thin line with a tick at each end, its name beside it, and witness
// lines from what is measured.
#pragma once

#include <optional>
#include <string>

#include "dialogs/lavagna.h"

namespace orm {

class Quote {
 public:
  // `tacca` is half the width of a tick in units of the panel. The font of the names is the one
  // that is set.
  Quote(Lavagna& lavagna, double tacca) : lavagna_(lavagna), tacca_(tacca) {}

  // The name stands above the line, with its middle at that of the line or at `nomeX`; with `daY`,
  // witness lines come from that height, and the name stands on the far side.
  void Orizzontale(double x1, double x2, double y, const std::string& nome,
                   std::optional<double> daY = {}, std::optional<double> nomeX = {}) const;
  // The name stands right of the line, or on the side away from `daX`, with its middle at that of
  // the line or at `nomeY`; beside the ticks of a short line it steps out.
  void Verticale(double x, double y1, double y2, const std::string& nome,
                 std::optional<double> daX = {}, std::optional<double> nomeY = {}) const;
  // The line alone, with its ticks and witness lines.
  void Riga(Point da, Point a) const;
  void Richiamo(Point oggetto, Point quota) const;
  // The name alone, where the drawing has found a place for it.
  void Nome(double x, double y, const std::string& testo, DrawOperation::Anchor anchor,
            bool upright = false) const;
  // A thin line from a name to its thing.
  void Freccia(double x1, double y1, double x2, double y2) const;
  // A text with its middle at the point.
  void Centrato(double x, double y, const std::string& testo) const;

 private:
  void Penna() const;

  Lavagna& lavagna_;
  double tacca_;
};

}  // namespace orm
