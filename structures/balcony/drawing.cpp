#include "structures/balcony/drawing.h"

#include <string>

#include "runtime/numbers.h"
#include "structures/balcony/defects.h"
#include "structures/balcony/view.h"
#include "structures/steel_profiles.h"

namespace orm {
namespace {

constexpr Colour kBlack{0, 0, 0}, kWarning{176, 32, 24};

FiguraBalcone Misure(const DatiBalcone& d) {
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

FiguraBalcone Schema(TipoBalcone tipo) {
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

std::string Valori(const FiguraBalcone& f) {
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
  const FiguraBalcone figura = completo ? Misure(dati) : Schema(dati.tipo);
  lavagna.Clear();
  DisegnaSezioneBalcone(lavagna, figura);
  DisegnaPiantaBalcone(lavagna, figura);
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
