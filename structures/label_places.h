// Places for the labels of a drawing: each as near to where it belongs as it stands free of lines,
// outlines and the other labels.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/lavagna.h"

namespace orm {

// Units of a panel.
struct Riquadro {
  double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
  bool Tocca(const Riquadro& altro) const {
    return x1 < altro.x2 && altro.x1 < x2 && y1 < altro.y2 && altro.y1 < y2;
  }
};

// A label in its place and what it tells, from which a line leads to its left edge.
struct EtichettaPosta {
  Point segno;
  Riquadro posto;
  std::string testo;
  Point Attacco() const { return {posto.x1, (posto.y1 + posto.y2) / 2}; }
};

// Labels of one length whose lines cross change places.
void Districa(std::vector<EtichettaPosta>& etichette);

class PostiEtichette {
 public:
  // `bordi` gives the x at which outlines cross a height; no label steps beyond `destra`.
  PostiEtichette(double minimo, double massimo, double destra,
                 std::function<std::vector<double>(double)> bordi)
      : minimo_(minimo), massimo_(massimo), destra_(destra), bordi_(std::move(bordi)) {}

  // A line along x, which labels pass above or below at so much distance: their rim must not break
  // an outline.
  void Riga(double x1, double x2, double y, double distanza = 0.2) {
    righe_.push_back({x1, x2, y - distanza, y + distanza});
  }
  void Occupa(const Riquadro& riquadro) { occupati_.push_back(riquadro); }

  // A label of that size whose left edge and middle belong at (x, y), x the first of `inizi` or
  // else another one: its place, which is taken from then on. It steps to the right of an outline,
  // up or down beside a line. The line from `segno`, what the label tells, to its left edge crosses
  // no earlier one and no label, if that can be.
  Riquadro Posto(std::initializer_list<double> inizi, double y, double larghezza, double altezza,
                 std::optional<Point> segno = {});

 private:
  struct Filo {
    Point da, a;
  };
  bool SuUnaRiga(const Riquadro& r) const;
  int Incroci(const Filo& filo, const Riquadro& etichetta) const;
  // Moves `r` to the right until nothing stands in it.
  void Scansa(Riquadro& r) const;

  double minimo_, massimo_;  // of the middle of a label
  double destra_;
  std::function<std::vector<double>(double)> bordi_;
  std::vector<Riquadro> righe_, occupati_;
  std::vector<Filo> fili_;
};

}  // namespace orm
