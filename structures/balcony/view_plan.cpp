#include <algorithm>

#include "structures/balcony/view.h"

namespace orm {
namespace {

class Pianta : VedutaBalcone {
 public:
  Pianta(Lavagna& lavagna, const FiguraBalcone& figura);
  void Disegna();

 private:
  // Units of the panel.
  static constexpr double kLeft = 60, kWide = 41, kTop = 42, kHigh = 29;
  static constexpr double kStrip = 3.6;  // of the wall beyond what lies in it, for its name

  double Largo() const { return std::max(f_.Fronte(), f_.Lm + f_.Ba); }
  double Scala(double alto) const;
  // m along the wall from the left end of the slab, and outward from the wall.
  double X(double m) const { return kLeft + kWide / 2 + (m - f_.Fronte() / 2) * scala_; }
  double Y(double m) const { return faccia_ - m * scala_; }
  const char* NomeMensole() const { return Putrelle() ? "Putrella" : "Mensole"; }
  bool LastraSottile() const { return f_.La * scala_ < 1.2 * riga_; }
  bool LastraStretta() const { return f_.Fronte() * scala_ < lavagna_.TextWidth("Lastra") + 1; }
  bool MensoleSulPosto() const;
  double RigheSotto() const;
  void Mensola(double m);
  void Nomi();
  void Misure();

  double muro_ = 0;
};

Pianta::Pianta(Lavagna& lavagna, const FiguraBalcone& figura) : VedutaBalcone(lavagna, figura) {
  using F = FiguraBalcone;
  Leggibile({&F::La, &F::Pm, &F::Bm, &F::Ls, &F::Lm, &F::Ba}, 1 / Scala(kHigh));
  scala_ = Scala(kHigh);
  for (int i = 0; i < 2; ++i) scala_ = Scala(kHigh - RigheSotto());  // a row may want another
  muro_ = std::max(kMuro * f_.Pm * scala_, f_.Pm * scala_ + kStrip);
  const double usato = muro_ + f_.Fuori() * scala_ + RigheSotto();
  faccia_ = kTop - muro_ - (kHigh - usato) / 2;
}

double Pianta::Scala(double alto) const {
  return std::min({kWide / Largo(), alto / (kMuro * f_.Pm + f_.Fuori()),
                   (alto - kStrip) / (f_.Pm + f_.Fuori())});
}

// With lines to both, above or below the name of the slab.
bool Pianta::MensoleSulPosto() const {
  return f_.La * scala_ > 4 * riga_ &&
         (f_.Lm - f_.Ba) * scala_ > lavagna_.TextWidth(NomeMensole()) + 3;
}

// Height of the names that have no room on the slab.
double Pianta::RigheSotto() const {
  const int righe = (LastraSottile() && !LastraStretta() ? 1 : 0) +
                    (f_.SuMensole() && !MensoleSulPosto() ? 1 : 0);
  return righe * riga_ + (righe > 0 ? 0.6 : 0);
}

void Pianta::Disegna() {
  Titolo(kLeft - 3, "Pianta");
  lavagna_.BeginView({100 / scala_, {X(f_.Fronte() / 2), faccia_}});
  const Punti muro = Rettangolo(kLeft - 2, faccia_, kLeft + kWide + 2, faccia_ + muro_);
  const Punti lastra = Rettangolo(X(0), Y(f_.La), X(f_.Fronte()), faccia_);
  const double assi[] = {f_.Ls, f_.Ls + f_.Lm};  // of the brackets
  if (f_.Bm > f_.La || f_.Ls < f_.Ba / 2)        // some of them is seen
    for (const double m : assi)
      Pieno(Rettangolo(X(m - f_.Ba / 2), Y(f_.Bm), X(m + f_.Ba / 2), faccia_),
            Putrelle() ? kSteel : kBracket);
  Riempi(lastra, kStone);
  Riempi(muro, kWall);
  if (f_.SuMensole())
    for (const double m : assi) Mensola(m);
  else
    Nascosto(Rettangolo(X(0), Y(-f_.Pm), X(f_.Fronte()), faccia_));
  Contorno(lastra);
  Contorno(muro);
  quote_.Centrato(X(f_.Fronte() / 2), (Y(-f_.Pm) + faccia_ + muro_) / 2, "Muro");
  Misure();
  Nomi();
  lavagna_.EndView();
}

// What slab and wall cover of it.
void Pianta::Mensola(double m) {
  const double x1 = m - f_.Ba / 2, x2 = m + f_.Ba / 2;
  Nascosto(Rettangolo(X(std::max(x1, 0.0)), Y(std::min(f_.Bm, f_.La)), X(std::min(x2, f_.Fronte())),
                      faccia_));
  Nascosto(Rettangolo(X(x1), Y(-f_.Pm), X(x2), faccia_));
}

// On the slab, or below it: first that of the slab, as the lines to both brackets pass beside it.
// That of a narrow slab stands at its side.
void Pianta::Nomi() {
  const double mezzo = X(f_.Fronte() / 2), centro = Y(f_.La / 2);
  const bool sulPosto = f_.SuMensole() && MensoleSulPosto();
  double y = std::max(Y(f_.La * 2 / 3), Y(f_.Bm / 2)), libera = Y(f_.La) - 0.7 * riga_;
  if (LastraStretta()) {
    const double lato = X(std::min(0.0, f_.Ls - f_.Ba / 2)), alto = std::min(centro, Y(0) - riga_);
    quote_.Freccia(lato - 1, alto, mezzo, centro);
    Scritta(lato - 1.4, alto, "Lastra", DrawOperation::Anchor::Right);
  } else if (LastraSottile()) {
    quote_.Freccia(mezzo, libera + 0.55 * riga_, mezzo, centro);
    Scritta(mezzo, libera, "Lastra", DrawOperation::Anchor::Centre);
    libera -= riga_;
  } else {
    const double lastra = sulPosto ? (y + (y > centro ? Y(f_.La) : faccia_)) / 2 : centro;
    quote_.Centrato(mezzo, lastra, "Lastra");
  }
  if (!f_.SuMensole()) return;
  const double meta = lavagna_.TextWidth(NomeMensole()) / 2 + 0.5;
  const double dentro = f_.Ls < f_.Ba / 4 ? f_.Ba / 4 : 0;  // off the end of the slab
  const double passo = (f_.Lm / 2 - dentro) * scala_;
  if (!sulPosto) y = libera;
  const Point da = passo > meta + 1 ? Point{meta, y} : Point{0.8, y + 0.55 * riga_};
  const double a = sulPosto ? y : std::max(da.y, Y(0.6 * f_.Bm));
  for (const int lato : {-1, 1}) quote_.Freccia(mezzo + lato * da.x, da.y, mezzo + lato * passo, a);
  if (sulPosto) return quote_.Centrato(mezzo, y, NomeMensole());
  Scritta(mezzo, y, NomeMensole(), DrawOperation::Anchor::Centre);
}

void Pianta::Misure() {
  const double lastra = Y(f_.La), y = std::min(lastra - RigheSotto(), Y(f_.Bm)) - 3.6;
  const double mezzo = X(f_.Fronte() / 2);
  const double da = X(f_.Ls), a = X(f_.Ls + f_.Lm);
  const char* campata = f_.SuMensole() ? "Lm" : "L";
  if (f_.Ls > 0) {  // the names beside that of the span, at the least
    const double passo = (lavagna_.TextWidth("Ls") + lavagna_.TextWidth(campata)) / 2 + 0.5;
    quote_.Orizzontale(X(0), da, y, "Ls", lastra, std::min((X(0) + da) / 2, mezzo - passo));
    quote_.Orizzontale(a, X(f_.Fronte()), y, "Ls", lastra,
                       std::max((a + X(f_.Fronte())) / 2, mezzo + passo));
  }
  quote_.Orizzontale(da, a, y, campata, lastra);
  const double muro = faccia_ + muro_, mensola = f_.Ba * scala_ / 2;
  if (f_.SuMensole() && !Putrelle())
    quote_.Orizzontale(a - mensola, a + mensola, muro + 1.2, "Ba", muro);
  // Beside a bracket at the end of the slab, which is wider than the slab there.
  const double fine = X(f_.Fronte()), bordo = std::max(fine, a + mensola);
  const double accanto = bordo + 1.8, fuori = kLeft + kWide + 3.2;  // not on the wall's corner
  const double x = accanto > kLeft + kWide ? fuori : accanto;
  quote_.Verticale(x, lastra, faccia_, "La");
  quote_.Richiamo({f_.Bm < f_.La ? fine : bordo, lastra}, {x, lastra});
}

}  // namespace

void DisegnaPiantaBalcone(Lavagna& lavagna, const FiguraBalcone& figura) {
  Pianta(lavagna, figura).Disegna();
}

}  // namespace orm
