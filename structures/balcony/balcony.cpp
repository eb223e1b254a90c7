#include "structures/balcony/balcony.h"

#include <algorithm>

#include "structures/steel_profiles.h"

namespace orm {
namespace {

constexpr double kMqInCmq = 0.0001;  // kg/mq to kg/cmq
constexpr double kSicurezzaRibaltamento = 1.5;

// Load along the wall of a slab on beams or brackets, kg/ml.
double CaricoLineareLastra(const DatiBalcone& d) {
  const auto& [kv, s] = d.sisma;
  return (1 + kv) * d.gs * d.t * d.b + (1 + kv) * d.Pl + (1 + s * kv) * d.qa * d.b;
}

bool Ribalta(double Mr, double Ms) { return Mr * kSicurezzaRibaltamento > Ms; }

// About the brackets, when the side overhang is loaded; the slab beyond them holds it down.
bool RibaltaDiLato(const DatiBalcone& d) {
  const double kv = d.sisma.kv, w = CaricoLineareLastra(d);
  const double Mr = d.Ls * d.Ls * w / 2 + (1 + kv) * d.Pl * d.b * d.Ls;
  const double Ms = (d.Ls + d.Lm) * (d.Ls + d.Lm) * ((1 - kv) * d.gs * d.t * d.b) / 2;
  return Ribalta(Mr, Ms);
}

// About the ends of the brackets, when the slab reaches farther out than they do.
bool RibaltaSulleMensole(const DatiBalcone& d) {
  if (d.b <= d.Bm) return false;
  const auto& [kv, s] = d.sisma;
  const double e = d.b - d.Bm, fronte = 2 * d.Ls + d.Lm;
  const double w =
      (1 + kv) * d.gs * d.t * fronte + 2 * (1 + kv) * d.Pl + (1 + s * kv) * d.qa * fronte;
  const double Mr = e * e * w / 2 + (1 + kv) * d.Pl * fronte * e;
  const double Ms = d.Bm * d.Bm * ((1 - kv) * d.gs * d.t * fronte) / 2;
  return Ribalta(Mr, Ms);
}

void TensioniLastra(const DatiBalcone& d, RisultatiBalcone& r) {
  const Sforzi lastra = SforziLastra(d);
  r[SigmaLastra] = kMqInCmq * lastra.M * 6 / (d.t * d.t * d.b);
  r[TauLastra] = kMqInCmq * lastra.V * 9 / (2 * d.b * d.t);
}

void TensioniLastraSemplice(const DatiBalcone& d, const Sforzi& muro, RisultatiBalcone& r) {
  r[SigmaLastra] = kMqInCmq * 6 * muro.M / (d.si * d.si * d.lunghezza);
  r[TauLastra] = kMqInCmq * 9 * muro.V / (2 * d.lunghezza * d.si);
}

// What hangs on half the slab: the load along the wall, and once more the load of the edge. That
// the load along the wall, which has the width in it already, is taken times the width for the
// shear and as if it stood on each metre of the bracket for the moment is the method's own.
Sforzi SforziDaLastra(const DatiBalcone& d, const Sforzi& pesoProprio) {
  const double kv = d.sisma.kv, w = CaricoLineareLastra(d), fronte = d.Lm / 2 + d.Ls;
  return {w * fronte * d.b + pesoProprio.V + (1 + kv) * d.Pl * fronte,
          d.Bm * d.Bm * w * fronte / 2 + pesoProprio.M + (1 + kv) * d.Pl * fronte * d.Bm};
}

Sforzi SforziPutrella(const DatiBalcone& d) {
  const double kv = d.sisma.kv, P = ProfiloNP(d.putrella).P;
  return SforziDaLastra(d, {(1 + kv) * P * d.Bm, d.Bm * d.Bm * (1 + kv) * P / 2});
}

// The bracket weighs on its whole length with the section of its end, and with what it is higher at
// the wall as a triangle.
Sforzi SforziMensola(const DatiBalcone& d) {
  const double kv = d.sisma.kv;
  const double fine = (1 + kv) * d.gs * d.b0 * d.he;
  const double rastremazione = (1 + kv) * d.gs * d.b0 * (d.hi - d.he);
  return SforziDaLastra(d, {rastremazione * d.Bm / 2 + fine * d.Bm,
                            d.Bm * d.Bm * rastremazione / 6 + d.Bm * d.Bm * fine / 2});
}

// The load of the edge counts as that of one metre, whatever the length of the slab.
Sforzi SforziLastraSemplice(const DatiBalcone& d) {
  const auto& [kv, s] = d.sisma;
  const double w =
      (d.lunghezza * d.gs * d.se + 2 * d.Pl) * (1 + kv) + (1 + s * kv) * d.lunghezza * d.qa;
  const double rastremazione = (1 + kv) * d.gs * d.lunghezza * (d.si - d.se);
  return {w * d.a + rastremazione * d.a / 2 + (1 + kv) * d.Pl,
          d.a * d.a * w / 2 + d.a * d.a * rastremazione / 6 + (1 + kv) * d.Pl * d.a};
}

void TensioniPutrella(const DatiBalcone& d, const Sforzi& muro, RisultatiBalcone& r) {
  const Tensioni tensioni = TensioniNelProfilo(d.putrella, muro.M, muro.V);
  r[SigmaAcciaio] = tensioni.sigma;
  r[TauAcciaio] = tensioni.tau;
}

void TensioniMensola(const DatiBalcone& d, const Sforzi& muro, RisultatiBalcone& r) {
  r[SigmaMensola] = kMqInCmq * muro.M * 6 / (d.hi * d.hi * d.b0);
  r[TauMensola] = kMqInCmq * muro.V * 3 / (2 * d.b0 * d.hi);
}

double LarghezzaNelMuro(const DatiBalcone& d) {
  switch (d.tipo) {
    case TipoBalcone::Putrelle:
      return ProfiloNP(d.putrella).b / 1000;
    case TipoBalcone::Mensole:
      return d.b0;
    case TipoBalcone::LastraSemplice:
      break;
  }
  return d.lunghezza;
}

// Two ways in which the pressure can go along what is in the wall; the larger counts.
double PressioneSulMuro(const DatiBalcone& d, const Sforzi& muro) {
  const double Bw = LarghezzaNelMuro(d), pr = d.pr;
  const double p1 = 2 * (3 * muro.M / pr + 2 * muro.V) / (10000 * Bw * pr);
  const double p2 = 4 * (3 * muro.M / (2 * pr) + 5 * muro.V / 4) / (10000 * Bw * pr);
  return std::max(p1, p2);
}

}  // namespace

// In the span the loads stand without the seismic factors, as they always have here.
Sforzi SforziLastra(const DatiBalcone& d) {
  const double kv = d.sisma.kv, w = CaricoLineareLastra(d);
  const double q = d.t * d.gs * d.b + d.Pl + d.b * d.qa;
  const double M1 = d.Ls * d.Ls * w / 2 + (1 + kv) * d.Pl * d.b * d.Ls;
  const double M2 = d.Lm * d.Lm * q / 8 - d.Ls * d.Ls * ((1 - kv) * d.gs * d.t * d.b) / 2;
  const double V1 = w * d.Ls + (1 + kv) * d.Pl * d.b;
  const double V2 = q * d.Lm / 2;
  return {std::max(V1, V2), std::max(M1, M2)};
}

Sforzi SforziAlMuro(const DatiBalcone& d) {
  switch (d.tipo) {
    case TipoBalcone::Putrelle:
      return SforziPutrella(d);
    case TipoBalcone::Mensole:
      return SforziMensola(d);
    case TipoBalcone::LastraSemplice:
      break;
  }
  return SforziLastraSemplice(d);
}

RisultatiBalcone VerificaBalcone(const DatiBalcone& dati, const ProsegueInstabile& prosegue) {
  RisultatiBalcone risultati{};
  const Sforzi muro = SforziAlMuro(dati);
  if (dati.tipo == TipoBalcone::LastraSemplice) {
    TensioniLastraSemplice(dati, muro, risultati);
  } else {
    if ((RibaltaDiLato(dati) && !prosegue(Ribaltamento::SbalziLaterali)) ||
        (RibaltaSulleMensole(dati) && !prosegue(Ribaltamento::SportoSuMensole))) {
      risultati[EsitoBalcone] = -1;
      return risultati;
    }
    TensioniLastra(dati, risultati);
    dati.tipo == TipoBalcone::Putrelle ? TensioniPutrella(dati, muro, risultati)
                                       : TensioniMensola(dati, muro, risultati);
  }
  risultati[IncrementoMuratura] = PressioneSulMuro(dati, muro);
  return risultati;
}

}  // namespace orm
