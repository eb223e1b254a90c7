#include "structures/balcony/view.h"

#include <string>

#include "structures/balcony/drawing.h"

namespace orm {
namespace {

constexpr Colour kEdge{0, 0, 0}, kHidden{110, 110, 110};
constexpr double kTacca = 0.65;
constexpr double kMinimo = 0.6;  // units: two edges and what is between them

}  // namespace

VedutaBalcone::VedutaBalcone(Lavagna& lavagna, const FiguraBalcone& figura)
    : lavagna_(lavagna), f_(figura), quote_(lavagna, kTacca) {
  lavagna.SetFont(9);
  riga_ = lavagna.LineHeight();
}

void VedutaBalcone::Leggibile(std::initializer_list<double FiguraBalcone::*> misure, double unita) {
  for (double FiguraBalcone::*misura : misure) {
    double& m = f_.*misura;
    if (m <= 0 || m >= kMinimo * unita) continue;
    m = kMinimo * unita;
    alterata_ = true;
  }
}

void VedutaBalcone::Titolo(double x, const char* nome) {
  lavagna_.SetFont(9, true);
  lavagna_.SetColour(kEdge);
  lavagna_.DrawText(x, kAltezzaBalcone - 0.4,
                    std::string(nome) + (alterata_ ? "  (non in scala)" : ""));
  lavagna_.SetFont(9);
}

void VedutaBalcone::Riempi(const Punti& punti, const Colour& colore) {
  lavagna_.SetColour(colore);
  lavagna_.DrawPolygon(punti, true);
}

void VedutaBalcone::Contorno(const Punti& punti) {
  lavagna_.SetColour(kEdge);
  lavagna_.DrawPolygon(punti);
}

void VedutaBalcone::Pieno(const Punti& punti, const Colour& colore) {
  Riempi(punti, colore);
  Contorno(punti);
}

void VedutaBalcone::Nascosto(const Punti& punti) {
  lavagna_.SetStroke(DrawOperation::Stroke::Dashed);
  lavagna_.SetColour(kHidden);
  lavagna_.DrawPolygon(punti);
  lavagna_.SetStroke(DrawOperation::Stroke::Solid);
}

void VedutaBalcone::Scritta(double x, double y, const char* testo, DrawOperation::Anchor anchor) {
  lavagna_.SetColour(kEdge);
  const bool halo = lavagna_.SetHalo(true);
  lavagna_.DrawText(x, y, testo, anchor);
  lavagna_.SetHalo(halo);
}

}  // namespace orm
