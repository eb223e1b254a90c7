// The drawing of a verified section: what the T and the circular shapes have in common. Depths and
// widths come in cm, the panel counts in its own units: the section stands on the left with its
// lower left corner at (1, 1), the diagram of stresses on the right of it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "dialogs/lavagna.h"

namespace orm {

struct TensioniAmmissibili {
  double acciaio = 0, cls = 0;  // kg/cmq
};

// A part of a horizontal line, from the left edge of the section's box, cm.
struct Tratto {
  double da = 0, a = 0;
};

// A stress to show: of concrete at an edge or of steel.
struct TensioneDisegnata {
  double profondita = 0;  // cm
  double valore = 0;      // kg/cmq, tension positive
  bool cls = false;
};

class DisegnoFlessione {
 public:
  // Empties the panel and takes the scale that suits a section of that height and width. The
  // background is white for a section that holds and yellow for one that does not; a line of text
  // says the same.
  DisegnoFlessione(Lavagna& lavagna, double H, double W, bool verificata);

  double X(double cm) const { return 1 + cm / Sc_; }
  double Y(double profondita) const { return 1 + (H_ - profondita) / Sc_; }
  double Scala() const { return Sc_; }  // cm a unit

  void Tratteggia(double bordo, double asse,
                  const std::function<std::vector<Tratto>(double)>& tratti);
  void AsseNeutro(double profondita);
  // Bars on the axis of symmetry: a mark at each depth (not wider than `larghezza` there) and the
  // area beside it. An area of 0 is no layer.
  void Armature(std::vector<double> profondita, std::vector<double> aree,
                const std::function<double(double)>& larghezza);
  // Compression left of the base line, tension right of it; the value stands on the free side.
  void DiagrammaTensioni(std::vector<TensioneDisegnata> tensioni, double asse,
                         const TensioniAmmissibili& ammesse);

 private:
  void Legenda(bool verificata);
  void Etichetta(double x, double y, const std::string& testo, Colour colore, bool grassetto);
  void ScriviTensioni(const std::vector<TensioneDisegnata>& tensioni,
                      const TensioniAmmissibili& ammesse, bool compresse, bool versoAlto);

  Lavagna& lavagna_;
  double H_, W_, Sc_;
};

// Scale of a section, cm a unit: six units high, unless it would then be 15 units wide or more.
double ScalaDisegno(double H, double W);

// Heights of labels that keep `passo` between neighbours: `quote` go down, and a label that would
// be too near to the one before gives way, downward or upward, as long as it stays within limits.
std::vector<double> QuoteEtichette(std::vector<double> quote, double passo, bool versoAlto,
                                   double minimo, double massimo);

}  // namespace orm
