#include "structures/balcony/drawing.h"

#include <algorithm>
#include <string>
#include <vector>

#include "runtime/numbers.h"
#include "structures/balcony/defects.h"
#include "structures/dimension_lines.h"
#include "structures/steel_profiles.h"

namespace orm {
namespace {

constexpr Colour kBlack{0, 0, 0}, kGrey{110, 110, 110}, kWall{222, 214, 203}, kStone{190, 200, 210},
    kBracket{160, 175, 190}, kSteel{160, 30, 30}, kWarning{176, 32, 24};
constexpr double kTick = 0.65;
// Where the views stand, in units of the panel.
constexpr double kSectionLeft = 8, kSectionWide = 38, kSectionHigh = 16, kSlabTop = 34;
constexpr double kWallTop = 39.5, kWallBottom = 13, kBelow = 9.5;
constexpr double kPlanLeft = 60, kPlanWide = 41, kPlanHigh = 21, kFace = 34;

// What is drawn, in m. A slab alone has no brackets; one on brackets has one thickness.
struct Figura {
  TipoBalcone tipo = TipoBalcone::Putrelle;
  double La, si, se, Pm;  // slab: outward, thickness at the wall and at its end; in the wall
  double Ls = 0, Lm = 0;  // along the wall; the slab alone has its length in Lm
  double Bm = 0, Hi = 0, He = 0, Ba = 0;  // beam or bracket
  bool SuMensole() const { return tipo != TipoBalcone::LastraSemplice; }
  bool operator==(const Figura&) const = default;
  double Fronte() const { return 2 * Ls + Lm; }
};

Figura Misure(const DatiBalcone& d) {
  switch (d.tipo) {
    case TipoBalcone::Putrelle: {
      const double h = AltezzaProfilo(d.putrella) / 1000, b = ProfiloNP(d.putrella).b / 1000;
      return {d.tipo, d.b, d.t, d.t, d.pr, d.Ls, d.Lm, d.Bm, h, h, b};
    }
    case TipoBalcone::Mensole:
      return {d.tipo, d.b, d.t, d.t, d.pr, d.Ls, d.Lm, d.Bm, d.hi, d.he, d.b0};
    case TipoBalcone::LastraSemplice:
      break;
  }
  return {d.tipo, d.a, d.si, d.se, d.pr, 0, d.lunghezza};
}

Figura Schema(TipoBalcone tipo) {
  switch (tipo) {
    case TipoBalcone::Putrelle:
      return {tipo, 1.2, 0.1, 0.1, 0.35, 0.4, 1.8, 1.1, 0.16, 0.16, 0.074};
    case TipoBalcone::Mensole:
      return {tipo, 1.2, 0.1, 0.1, 0.35, 0.4, 1.8, 1.1, 0.35, 0.2, 0.25};
    case TipoBalcone::LastraSemplice:
      break;
  }
  return {tipo, 1.0, 0.25, 0.14, 0.35, 0, 2.4};
}

// A measure that is neither lost beside the others nor drives them off the panel.
double Fra(double misura, double intero, double minimo, double massimo) {
  return std::clamp(misura, intero * minimo, intero * massimo);
}

Figura Leggibile(Figura f) {
  const double fuori = std::max(f.La, f.Bm);
  f.La = std::max(f.La, 0.3 * fuori);
  f.Bm = f.SuMensole() ? std::max(f.Bm, 0.3 * fuori) : 0;
  f.Pm = Fra(f.Pm, fuori, 0.2, 0.8);
  f.si = Fra(f.si, fuori, 0.05, 0.5);
  f.se = std::min(Fra(f.se, fuori, 0.05, 0.5), f.si);
  f.Hi = f.SuMensole() ? Fra(f.Hi, fuori, 0.1, 0.6) : 0;
  f.He = f.SuMensole() ? std::min(Fra(f.He, fuori, 0.04, 0.6), f.Hi) : 0;
  f.Lm = Fra(f.Lm, std::max(f.La, f.Ls), 0.7, 6);
  if (f.Ls > 0) f.Ls = Fra(f.Ls, f.Lm, 0.15, 1);
  f.Ba = Fra(f.Ba, f.Lm, 0.03, 0.3);
  return f;
}

class Disegno {
 public:
  Disegno(Lavagna& lavagna, const Figura& figura, bool alterata)
      : lavagna_(lavagna), f_(figura), quote_(lavagna, kTick), alterata_(alterata) {}
  void Sezione();
  void Pianta();
  void Titolo(double x, const std::string& testo);

 private:
  using Punti = std::vector<Point>;
  void Pieno(const Punti& punti, const Colour& colore);
  void Nascosto(const Punti& punti);
  Punti Rettangolo(double x1, double y1, double x2, double y2) const;
  void Putrella(double x1, double x2, double sopra, double sotto);
  void QuoteSezione(double sopra, double sotto);
  void Nome(double x, double y, double altezza, double fuori, const char* nome);

  double Muro() const { return 1.35 * f_.Pm; }  // as thick as it is drawn
  // Metres outward from the face of the wall to units of the section.
  double X(double m) const { return kSectionLeft + (Muro() + m) * scala_; }
  const char* NomeMensola() const {
    return f_.tipo == TipoBalcone::Putrelle ? "Putrella" : "Mensola";
  }

  Lavagna& lavagna_;
  const Figura& f_;
  Quote quote_;
  bool alterata_;     // some measure is not drawn as it is
  double scala_ = 1;  // units a metre of the view at work
};

void Disegno::Pieno(const Punti& punti, const Colour& colore) {
  lavagna_.SetStroke(DrawOperation::Stroke::Solid);
  lavagna_.SetWidth(1);
  lavagna_.SetColour(colore);
  lavagna_.DrawPolygon(punti, true);
  lavagna_.SetColour(kBlack);
  lavagna_.DrawPolygon(punti);
}

// What other parts cover.
void Disegno::Nascosto(const Punti& punti) {
  lavagna_.SetStroke(DrawOperation::Stroke::Dashed);
  lavagna_.SetWidth(1);
  lavagna_.SetColour(kGrey);
  lavagna_.DrawPolygon(punti);
  lavagna_.SetStroke(DrawOperation::Stroke::Solid);
}

Disegno::Punti Disegno::Rettangolo(double x1, double y1, double x2, double y2) const {
  return {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}};
}

void Disegno::Titolo(double x, const std::string& testo) {
  lavagna_.SetFont(9, true);
  lavagna_.SetColour(kBlack);
  lavagna_.DrawText(x, kAltezzaBalcone - 0.4, testo + (alterata_ ? "  (non in scala)" : ""));
  lavagna_.SetFont(9);
}

void Disegno::Putrella(double x1, double x2, double sopra, double sotto) {
  Pieno(Rettangolo(x1, sotto, x2, sopra), kSteel);
  const double ala = (sopra - sotto) / 8;
  Pieno(Rettangolo(x1, sotto + ala, x2, sopra - ala), {205, 130, 130});
}

void Disegno::Sezione() {
  scala_ =
      std::min(kSectionWide / (Muro() + std::max(f_.La, f_.Bm)), kSectionHigh / (f_.si + f_.Hi));
  Titolo(3, "Sezione");
  const double face = X(0), sopra = kSlabTop - f_.si * scala_, sotto = sopra - f_.Hi * scala_;
  lavagna_.BeginView({100 / scala_, {face, kSlabTop}});
  Pieno(Rettangolo(X(-Muro()), kWallBottom, face, kWallTop), kWall);
  quote_.Centrato(X(-Muro() / 2), kWallBottom + 2, "Muro");
  if (!f_.SuMensole()) {
    Nascosto(Rettangolo(X(-f_.Pm), sopra, face, kSlabTop));
    const double fine = kSlabTop - f_.se * scala_;
    Pieno({{face, sopra}, {X(f_.La), fine}, {X(f_.La), kSlabTop}, {face, kSlabTop}}, kStone);
  } else {
    Pieno(Rettangolo(face, sopra, X(f_.La), kSlabTop), kStone);
    Nascosto(Rettangolo(X(-f_.Pm), sotto, face, sopra));
    if (f_.tipo == TipoBalcone::Putrelle)
      Putrella(face, X(f_.Bm), sopra, sotto);
    else
      Pieno({{face, sotto}, {X(f_.Bm), sopra - f_.He * scala_}, {X(f_.Bm), sopra}, {face, sopra}},
            kBracket);
    const double x = X(f_.Bm / 2), y = std::min(sotto, kWallBottom + 8) - 2.6;
    quote_.Freccia(x, y + 1.2, x, sopra - f_.He * scala_ / 2);
    quote_.Centrato(x, y, NomeMensola());
  }
  const double spessore = (0.6 * f_.si + 0.4 * f_.se) * scala_;  // where its name stands
  Nome(X(0.3 * f_.La), kSlabTop - spessore / 2, spessore, kSlabTop + 1.7, "Lastra");
  QuoteSezione(sopra, sotto);
  lavagna_.EndView();
}

// A name on its thing, or beside it with a line to it where there is no room.
void Disegno::Nome(double x, double y, double altezza, double fuori, const char* nome) {
  if (altezza > 1.2 * lavagna_.LineHeight()) return quote_.Centrato(x, y, nome);
  quote_.Freccia(x, fuori - (fuori > y ? 1 : -1), x, y);
  quote_.Centrato(x, fuori, nome);
}

void Disegno::QuoteSezione(double sopra, double sotto) {
  const double fuori = X(std::max(f_.La, f_.Bm));
  quote_.Orizzontale(X(0), X(f_.La), kSlabTop + 5, "La", kSlabTop);
  quote_.Orizzontale(X(-f_.Pm), X(0), kBelow, "Pm", kWallBottom);
  const double left = kSectionLeft - 2.2;
  if (f_.SuMensole()) {
    const double end = sopra - f_.He * scala_;
    quote_.Orizzontale(X(0), X(f_.Bm), kBelow, "Bm");
    quote_.Richiamo({X(f_.Bm), end}, {X(f_.Bm), kBelow});
    quote_.Verticale(fuori + 6.6, sopra, kSlabTop, "s", X(f_.La));
    quote_.Verticale(left, sotto, sopra, "Hi", X(-f_.Pm));
    // Below the witness line of the slab's thickness, where the end is thin.
    const double nome = std::min((end + sopra) / 2, sopra - 0.6 * lavagna_.LineHeight());
    quote_.Verticale(X(f_.Bm) + 1.8, end, sopra, "He", X(f_.Bm), nome);
  } else {
    quote_.Verticale(left, sopra, kSlabTop, "Hi", X(-f_.Pm));
    quote_.Verticale(fuori + 1.8, kSlabTop - f_.se * scala_, kSlabTop, "He", fuori);
  }
}

void Disegno::Pianta() {
  const double fuori = std::max(f_.La, f_.Bm), fronte = f_.Fronte();
  scala_ = std::min(kPlanWide / fronte, kPlanHigh / fuori);
  const auto x = [&](double m) {
    return kPlanLeft + (kPlanWide - fronte * scala_) / 2 + m * scala_;
  };
  const double spessore = std::clamp(Muro() * scala_, 4.5, 8.0), fine = kFace - f_.La * scala_;
  Titolo(kPlanLeft - 3, "Pianta");
  lavagna_.BeginView({100 / scala_, {x(fronte / 2), kFace}});
  Pieno(Rettangolo(kPlanLeft - 2, kFace, kPlanLeft + kPlanWide + 2, kFace + spessore), kWall);
  Pieno(Rettangolo(x(0), fine, x(fronte), kFace), kStone);
  const double dentro = kFace + std::min(f_.Pm * scala_, spessore / 1.35);
  double lastra = (kFace + fine) / 2;  // where its name stands
  const double mezzo = x(fronte / 2), alto = (2 * kFace + fine) / 3, basso = (kFace + 2 * fine) / 3;
  double lastraX = mezzo;
  if (f_.SuMensole()) {
    for (const double m : {f_.Ls, f_.Ls + f_.Lm})
      Nascosto(Rettangolo(x(m - f_.Ba / 2), kFace - f_.Bm * scala_, x(m + f_.Ba / 2), dentro));
    const bool putrelle = f_.tipo == TipoBalcone::Putrelle;
    const double sinistra = f_.Ls, destra = f_.Ls + f_.Lm;
    if (!putrelle)
      quote_.Orizzontale(x(destra - f_.Ba / 2), x(destra + f_.Ba / 2), kFace + spessore + 1.2, "Ba",
                         kFace + spessore);
    const char* nome = putrelle ? "Putrella" : "Mensole";
    const double meta = lavagna_.TextWidth(nome) / 2 + 0.5;  // and clear of the line
    // In a narrow slab the two names stand beside each other.
    const bool stretta = kFace - fine < 4 * lavagna_.LineHeight();
    const double y = stretta ? lastra : std::max(basso, kFace - f_.Bm * scala_ / 2);
    if (stretta)
      lastraX = x(fronte / 4);
    else
      lastra = y > (alto + basso) / 2 ? basso : alto;
    if (!stretta) quote_.Freccia(mezzo - meta, y, x(sinistra), y);
    quote_.Freccia(mezzo + meta, y, x(destra), y);
    quote_.Centrato(mezzo, y, nome);
  } else {
    Nascosto(Rettangolo(x(0), kFace, x(fronte), dentro));
  }
  quote_.Centrato(lastraX, lastra, "Lastra");
  quote_.Centrato(mezzo, kFace + spessore / 2, "Muro");
  const double sotto = std::min(fine, kFace - f_.Bm * scala_) - 3.6;
  if (f_.Ls > 0) {
    quote_.Orizzontale(x(0), x(f_.Ls), sotto, "Ls", fine);
    quote_.Orizzontale(x(f_.Ls + f_.Lm), x(fronte), sotto, "Ls", fine);
  }
  quote_.Orizzontale(x(f_.Ls), x(f_.Ls + f_.Lm), sotto, f_.SuMensole() ? "Lm" : "L", fine);
  // Beside a bracket at the end of the slab, which is wider than the slab there.
  const double bordo = f_.SuMensole() ? std::max(fronte, f_.Ls + f_.Lm + f_.Ba / 2) : fronte;
  quote_.Verticale(x(bordo) + 1.8, fine, kFace, "La", x(fronte));
  lavagna_.EndView();
}

std::string Valori(const Figura& f) {
  std::string testo;
  const auto aggiungi = [&](const char* lettera, double misura) {
    testo +=
        std::string(testo.empty() ? "" : "   ") + lettera + " " + FormatPattern(misura, "0.###");
  };
  if (f.SuMensole()) {
    aggiungi("s", f.si);
    aggiungi("La", f.La);
    aggiungi("Ls", f.Ls);
    aggiungi("Lm", f.Lm);
    aggiungi("Pm", f.Pm);
    aggiungi("Bm", f.Bm);
    if (f.tipo == TipoBalcone::Mensole) aggiungi("Ba", f.Ba);
  } else {
    aggiungi("L", f.Lm);
    aggiungi("La", f.La);
    aggiungi("Pm", f.Pm);
  }
  aggiungi("Hi", f.tipo == TipoBalcone::LastraSemplice ? f.si : f.Hi);
  aggiungi("He", f.tipo == TipoBalcone::LastraSemplice ? f.se : f.He);
  return testo + "   [m]";
}

}  // namespace

void DisegnaBalcone(Lavagna& lavagna, const DatiBalcone& dati) {
  const bool completo = DifettoBalcone(dati).empty();
  const Figura figura = completo ? Misure(dati) : Schema(dati.tipo);
  const Figura disegnata = Leggibile(figura);
  lavagna.Clear();
  Disegno disegno(lavagna, disegnata, completo && !(disegnata == figura));
  disegno.Sezione();
  disegno.Pianta();
  lavagna.SetFont(8);
  lavagna.SetColour(kBlack);
  std::string sotto = completo ? Valori(figura) : "Schema: mancano delle misure";
  if (RastremazioneInversa(dati)) {
    sotto = "Schema: l'estremità è più spessa dell'incastro";
    lavagna.SetColour(kWarning);
    lavagna.SetFont(10, true);
  }
  lavagna.DrawText(3, 4.8, sotto);
}

}  // namespace orm
