#include "structures/balcony/statics.h"

#include <algorithm>

#include "structures/steel_profiles.h"

namespace orm {
namespace {

struct Carichi {
  double peso;       // of a cubic metre of stone
  double bordo;      // of a metre of edge
  double ripartito;  // of a square metre of slab
};

Carichi ConSisma(const DatiBalcone& d) {
  const auto& [kv, s] = d.sisma;
  return {(1 + kv) * d.gs, (1 + kv) * d.Pl, (1 + s * kv) * d.qa};
}

double Rapporto(double statica, double verifica) { return verifica == 0 ? 1 : statica / verifica; }

// Of a cantilever that tapers from `hi` to `he`, as wide as `base`.
Sforzi DaPesoRastremato(double peso, double base, double hi, double he, double L) {
  const double fine = peso * base * he, rastremazione = peso * base * (hi - he);
  return {fine * L + rastremazione * L / 2, fine * L * L / 2 + rastremazione * L * L / 6};
}

// Further loads on a cantilever of length L: one on each metre of it, one at its end.
Sforzi Caricato(const Sforzi& proprio, double alMetro, double inPunta, double L) {
  return {proprio.V + alMetro * L + inPunta, proprio.M + alMetro * L * L / 2 + inPunta * L};
}

}  // namespace

Sforzi StaticaLastra(const DatiBalcone& d) {
  const auto [peso, bordo, ripartito] = ConSisma(d);
  const double w = peso * d.t * d.b + bordo + ripartito * d.b;
  const double trattiene = (1 - d.sisma.kv) * d.gs * d.t * d.b;
  return {std::max(w * d.Ls + bordo * d.b, w * d.Lm / 2),
          std::max(w * d.Ls * d.Ls / 2 + bordo * d.b * d.Ls,
                   w * d.Lm * d.Lm / 8 - trattiene * d.Ls * d.Ls / 2)};
}

Sforzi StaticaAlMuro(const DatiBalcone& d) {
  const auto [peso, bordo, ripartito] = ConSisma(d);
  if (d.tipo == TipoBalcone::LastraSemplice) {
    const Sforzi lastra = DaPesoRastremato(peso, d.lunghezza, d.si, d.se, d.a);
    return Caricato(lastra, ripartito * d.lunghezza + 2 * bordo, bordo * d.lunghezza, d.a);
  }
  const double fronte = d.Lm / 2 + d.Ls;  // what one beam or bracket carries, with one side
  const Sforzi proprio = d.tipo == TipoBalcone::Mensole
                             ? DaPesoRastremato(peso, d.b0, d.hi, d.he, d.Bm)
                             : Caricato({}, (1 + d.sisma.kv) * ProfiloNP(d.putrella).P, 0, d.Bm);
  return Caricato(proprio, (peso * d.t + ripartito) * fronte + bordo, bordo * fronte, d.b);
}

RisultatiBalcone StaticaSuVerifica(const DatiBalcone& d) {
  const Sforzi statica = StaticaAlMuro(d), verifica = SforziAlMuro(d);
  const double sigma = Rapporto(statica.M, verifica.M), tau = Rapporto(statica.V, verifica.V);
  RisultatiBalcone r{};
  r[IncrementoMuratura] =
      Rapporto(6 * statica.M / d.pr + 4 * statica.V, 6 * verifica.M / d.pr + 5 * verifica.V);
  if (d.tipo == TipoBalcone::LastraSemplice) {
    r[SigmaLastra] = sigma;
    r[TauLastra] = tau / 3;  // the check has 9/2 of the mean shear stress in slabs
    return r;
  }
  const Sforzi lastra = StaticaLastra(d), lastraVerifica = SforziLastra(d);
  r[SigmaLastra] = Rapporto(lastra.M, lastraVerifica.M);
  r[TauLastra] = Rapporto(lastra.V, lastraVerifica.V) / 3;
  const bool putrelle = d.tipo == TipoBalcone::Putrelle;
  r[putrelle ? SigmaAcciaio : SigmaMensola] = sigma;
  r[putrelle ? TauAcciaio : TauMensola] = tau;
  return r;
}

}  // namespace orm
