// What the two views of a balcony's drawing share: the figure, its scale, fills and outlines.
#pragma once

#include <initializer_list>
#include <vector>

#include "dialogs/lavagna.h"
#include "structures/balcony/balcony.h"
#include "structures/dimension_lines.h"

namespace orm {

// What is drawn, in m. A slab alone has no brackets; one on brackets has one thickness.
struct FiguraBalcone {
  TipoBalcone tipo = TipoBalcone::Putrelle;
  double La, si, se, Pm;  // slab: outward, thickness at the wall and at its end; in the wall
  double Ls = 0, Lm = 0;  // along the wall; the slab alone has its length in Lm
  double Bm = 0, Hi = 0, He = 0, Ba = 0;  // beam or bracket
  bool SuMensole() const { return tipo != TipoBalcone::LastraSemplice; }
  double Fronte() const { return 2 * Ls + Lm; }
  double Fuori() const { return La > Bm ? La : Bm; }  // out of the wall
};

void DisegnaSezioneBalcone(Lavagna& lavagna, const FiguraBalcone& figura);
void DisegnaPiantaBalcone(Lavagna& lavagna, const FiguraBalcone& figura);

class VedutaBalcone {
 protected:
  using Punti = std::vector<Point>;
  static constexpr Colour kWall{222, 214, 203}, kStone{190, 200, 210}, kBracket{160, 175, 190},
      kSteel{160, 30, 30}, kWeb{205, 130, 130};
  static constexpr double kMuro = 1.35;  // thickness of the wall to what lies in it

  VedutaBalcone(Lavagna& lavagna, const FiguraBalcone& figura);

  // Of these measures those that would be lost at so many metres a unit are drawn as long as can be
  // seen, which the title tells. Nothing is drawn of a measure that is 0.
  void Leggibile(std::initializer_list<double FiguraBalcone::*> misure, double unita);
  void Titolo(double x, const char* nome);
  void Riempi(const Punti& punti, const Colour& colore);
  void Contorno(const Punti& punti);
  void Pieno(const Punti& punti, const Colour& colore);
  // What other parts cover; a short edge is seen if it is the first. The outlines come after it, so
  // that an edge that is seen stays whole.
  void Nascosto(const Punti& punti);
  // A text that lines of measures may pass.
  void Scritta(double x, double y, const char* testo, DrawOperation::Anchor anchor);
  static Punti Rettangolo(double x1, double y1, double x2, double y2) {
    return {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}};
  }
  bool Putrelle() const { return f_.tipo == TipoBalcone::Putrelle; }

  Lavagna& lavagna_;
  FiguraBalcone f_;
  Quote quote_;
  double riga_;        // height of a line of text
  double scala_ = 1;   // units a metre
  double faccia_ = 0;  // of the wall: its place in the view

 private:
  bool alterata_ = false;  // some measure is not drawn as it is
};

}  // namespace orm
