// Places for the labels of a drawing: each as near to where it belongs as it stands free of lines,
// outlines and the other labels.
#pragma once

#include <functional>
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

// Where the line from `segno` meets a label: at its left edge, or at the right one of a label that
// stands left of it.
inline Point Attacco(const Riquadro& posto, const Point& segno) {
  return {segno.x > posto.x2 ? posto.x2 : posto.x1, (posto.y1 + posto.y2) / 2};
}

// A label in its place and what it tells, from which a line leads to it.
struct EtichettaPosta {
  Point segno;
  Riquadro posto;
  std::string testo;
  Point Attacco() const { return orm::Attacco(posto, segno); }
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
  void Occupa(const Riquadro& riquadro) { occupati_.push_back({riquadro, {}}); }

  // A label whose left edge and middle belong at (x, y), x the first of `inizi` or else another
  // one, and what it tells, from which a line leads to it.
  struct Richiesta {
    std::vector<double> inizi;
    double y = 0, larghezza = 0, altezza = 0;
    std::optional<Point> segno;
  };
  // Their places, in that order, which are taken from then on. A label steps to the right of an
  // outline, up or down beside a line. The lines to them cross none of each other and no label, if
  // that can be.
  std::vector<Riquadro> Posti(const std::vector<Richiesta>& etichette);

 private:
  struct Occupato {
    Riquadro posto;
    std::optional<Point> segno;
    Point Attacco() const { return orm::Attacco(posto, *segno); }
  };
  // The best place, or the one where the label stands, `attuale`, if none is better.
  Riquadro Posto(const Richiesta& etichetta, const Riquadro* attuale = nullptr) const;
  double Costo(const Richiesta& etichetta, const Riquadro& posto) const;
  bool SuUnaRiga(const Riquadro& r) const;
  int Incroci(const Occupato& nuovo) const;
  // Moves `r` to the right until nothing stands in it.
  void Scansa(Riquadro& r) const;

  double minimo_, massimo_;  // of the middle of a label
  double destra_;
  std::function<std::vector<double>(double)> bordi_;
  std::vector<Riquadro> righe_;
  std::vector<Occupato> occupati_;
};

}  // namespace orm
