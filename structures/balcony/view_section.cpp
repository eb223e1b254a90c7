#include <algorithm>

#include "structures/balcony/view.h"

namespace orm {
namespace {

class Sezione : VedutaBalcone {
 public:
  Sezione(Lavagna& lavagna, const FiguraBalcone& figura);
  void Disegna();

 private:
  // Units of the panel.
  static constexpr double kLeft = 8, kWide = 38, kHigh = 16, kSlabTop = 34;
  static constexpr double kWallTop = 39.5, kWallBottom = 13, kBelow = 9.5;
  static constexpr double kWallLeast = 8;               // room for its name
  static constexpr double kFirst = 1.8, kSecond = 7.2;  // rows of measures, from the end

  double Scala() const;
  double X(double m) const { return faccia_ + m * scala_; }  // m outward from the wall
  void Mensola();
  // What a name stands on, from the wall outward.
  struct Pezzo {
    double sopra, lungo, alMuro, allaFine;
    double Alto(double x) const { return alMuro + (allaFine - alMuro) * x / lungo; }
  };
  void Nome(const Pezzo& pezzo, double y, const char* nome);
  void QuoteLastra();
  void QuoteMensola();

  double muro_ = 0;
  double sopra_ = 0, sotto_ = 0;  // edges of the bracket at the wall
};

Sezione::Sezione(Lavagna& lavagna, const FiguraBalcone& figura) : VedutaBalcone(lavagna, figura) {
  using F = FiguraBalcone;
  Leggibile({&F::La, &F::Pm, &F::Bm, &F::si, &F::se, &F::Hi, &F::He}, 1 / Scala());
  scala_ = Scala();
  muro_ = std::max(kMuro * f_.Pm * scala_, kWallLeast);
  faccia_ = kLeft + (kWide + muro_ - f_.Fuori() * scala_) / 2;
  sopra_ = kSlabTop - f_.si * scala_;
  sotto_ = sopra_ - f_.Hi * scala_;
}

double Sezione::Scala() const {
  return std::min({kWide / (kMuro * f_.Pm + f_.Fuori()), (kWide - kWallLeast) / f_.Fuori(),
                   kHigh / (f_.si + f_.Hi)});
}

void Sezione::Disegna() {
  Titolo(3, "Sezione");
  lavagna_.BeginView({100 / scala_, {faccia_, kSlabTop}});
  const Punti muro = Rettangolo(faccia_ - muro_, kWallBottom, faccia_, kWallTop);
  const Punti lastra = {{faccia_, sopra_},
                        {X(f_.La), kSlabTop - f_.se * scala_},
                        {X(f_.La), kSlabTop},
                        {faccia_, kSlabTop}};
  Riempi(muro, kWall);
  const double basso = f_.SuMensole() ? sotto_ : sopra_, alto = f_.SuMensole() ? sopra_ : kSlabTop;
  Nascosto({{X(-f_.Pm), basso}, {X(-f_.Pm), alto}, {faccia_, alto}, {faccia_, basso}});
  Contorno(muro);
  quote_.Centrato(faccia_ - muro_ / 2, kWallBottom + 2, "Muro");
  if (f_.SuMensole()) Mensola();
  Pieno(lastra, kStone);
  Nome({kSlabTop, f_.La * scala_, f_.si * scala_, f_.se * scala_}, kSlabTop + 2.6, "Lastra");
  QuoteLastra();
  if (f_.SuMensole()) QuoteMensola();
  lavagna_.EndView();
}

void Sezione::Mensola() {
  const double fine = X(f_.Bm), alto = f_.Hi * scala_, ala = Putrelle() ? alto / 8 : 0;
  Pieno({{faccia_, sotto_}, {fine, sopra_ - f_.He * scala_}, {fine, sopra_}, {faccia_, sopra_}},
        Putrelle() ? kSteel : kBracket);
  if (Putrelle()) Pieno(Rettangolo(faccia_, sotto_ + ala, fine, sopra_ - ala), kWeb);
  Nome({sopra_ - ala, f_.Bm * scala_, alto - 2 * ala, f_.He * scala_ - 2 * ala},
       std::min(sotto_, kWallBottom + 8) - 2.6, Putrelle() ? "Putrella" : "Mensola");
}

// A name on its thing; with a line to it from the height y where there is no room, and from beyond
// the witness line at its end where there is none before that.
void Sezione::Nome(const Pezzo& pezzo, double y, const char* nome) {
  const double largo = lavagna_.TextWidth(nome), mezzo = pezzo.lungo / 2, x = faccia_ + mezzo;
  const double alto = pezzo.Alto(mezzo + largo / 2);
  const bool lungo = pezzo.lungo > largo + 1.5;
  if (lungo && alto > 1.1 * riga_) return quote_.Centrato(x, pezzo.sopra - alto / 2, nome);
  const Point cosa{x, pezzo.sopra - pezzo.Alto(mezzo) / 2};
  if (lungo) {
    quote_.Freccia(x, y + (y > cosa.y ? -0.55 : 0.55) * riga_, x, cosa.y);
    return quote_.Centrato(x, y, nome);
  }
  const double fine = faccia_ + pezzo.lungo;
  quote_.Freccia(fine + 0.8, y, x, cosa.y);
  Scritta(fine + 1.2, y, nome, DrawOperation::Anchor::Left);
}

void Sezione::QuoteLastra() {
  quote_.Orizzontale(faccia_, X(f_.La), kSlabTop + 5, "La", kSlabTop);
  quote_.Orizzontale(X(-f_.Pm), faccia_, kBelow, "Pm", kWallBottom);
  const double fine = X(f_.Fuori());
  if (f_.SuMensole()) {  // the lower witness line is that of the bracket too
    quote_.Verticale(fine + kSecond, sopra_, kSlabTop, "s");
    quote_.Richiamo({X(f_.La), kSlabTop}, {fine + kSecond, kSlabTop});
    quote_.Richiamo({fine, sopra_}, {fine + kSecond, sopra_});
    return;
  }
  quote_.Verticale(faccia_ - muro_ - 2.2, sopra_, kSlabTop, "Hi", X(-f_.Pm));
  if (f_.se > 0) quote_.Verticale(fine + kFirst, kSlabTop - f_.se * scala_, kSlabTop, "He", fine);
}

void Sezione::QuoteMensola() {
  const double end = sopra_ - f_.He * scala_, x = X(f_.Fuori()) + kFirst;
  quote_.Orizzontale(faccia_, X(f_.Bm), kBelow, "Bm");
  quote_.Richiamo({X(f_.Bm), end}, {X(f_.Bm), kBelow});
  quote_.Verticale(faccia_ - muro_ - 2.2, sotto_, sopra_, "Hi", X(-f_.Pm));
  if (f_.He == 0) return;
  // Below the witness line of the slab's thickness, where the end is thin.
  quote_.Verticale(x, end, sopra_, "He", {}, std::min((end + sopra_) / 2, sopra_ - 0.6 * riga_));
  quote_.Richiamo({X(f_.Bm), end}, {x, end});
}

}  // namespace

void DisegnaSezioneBalcone(Lavagna& lavagna, const FiguraBalcone& figura) {
  Sezione(lavagna, figura).Disegna();
}

}  // namespace orm
