#include "structures/balcony/balcony.h"

#include <algorithm>
#include <string>
#include <utility>

#include "runtime/explanation/steps.h"
#include "structures/steel_profiles.h"

namespace orm {
namespace {

constexpr double kMqInCmq = 0.0001;  // kg/mq to kg/cmq
constexpr double kSicurezzaRibaltamento = 1.5;
constexpr const char* kModelloStabilita = "###0.00";

// What the seismic action adds to a load, or takes from one that holds down.
Conto ConSisma(double kv, double carico) {
  return kv == 0 ? Conto(carico) : (Conto(1) + kv) * carico;
}
Conto MenoSisma(double kv, double carico) {
  return kv == 0 ? Conto(carico) : (Conto(1) - kv) * carico;
}
Conto ConSisma(const FattoriSismici& sisma, double ripartito) {
  const auto& [kv, s] = sisma;
  return kv == 0 ? Conto(ripartito) : (Conto(1) + Conto(s) * kv) * ripartito;
}

// Load along the wall of a slab on beams or brackets, kg/ml.
Conto CaricoLineareLastra(const DatiBalcone& d) {
  return ConSisma(d.sisma.kv, d.gs) * d.t * d.b + ConSisma(d.sisma.kv, d.Pl) +
         ConSisma(d.sisma, d.qa) * d.b;
}

void AnnotaSisma(const DatiBalcone& d, Catena& passi) {
  if (d.sisma.kv != 0)
    passi.push_back(PassoDiParole("Zona sismica: kv = " + CifraEsatta(d.sisma.kv) +
                                  ", s = " + CifraEsatta(d.sisma.s) +
                                  "; i carichi sono moltiplicati per (1 + kv), il sovraccarico per "
                                  "(1 + s kv), i pesi che trattengono per (1 - kv)"));
}

// The same as the first step of what is reckoned with it.
double CaricoLineareLastra(const DatiBalcone& d, Catena& passi) {
  AnnotaSisma(d, passi);
  return Annota(passi, "Carico al metro lungo il muro, w = gs s La + Pl + qa La",
                CaricoLineareLastra(d), "Kg/ml");
}

// Moments that overturn and that hold, kg x m, and how they came about.
struct Equilibrio {
  Conto Mr, Ms;
  Catena passi = {};
  bool Ribalta() const { return Mr * kSicurezzaRibaltamento > Ms; }

  // What a person reads; a slab that nothing overturns has nothing to be held against.
  Catena Spiega(const char* ribaltante, const char* stabilizzante) {
    if (Mr == 0) return {};
    Annota(passi, ribaltante, Mr, "Kg x m");
    Annota(passi, stabilizzante, Ms, "Kg x m");
    const Conto grado = Conto(Ms.Valore()) / Mr.Valore();
    passi.push_back(
        PassoMostrato("Grado di sicurezza, Ms / Mr", grado.Testo(), grado, "", kModelloStabilita));
    passi.back().note = {Ribalta() ? "È MINORE di 1,5: la lastra potrebbe essere instabile"
                                   : "Non è minore di 1,5"};
    return std::move(passi);
  }
};

// About the brackets, when the side overhang is loaded; the slab beyond them holds it down.
Equilibrio DiLato(const DatiBalcone& d) {
  Equilibrio e;
  const double kv = d.sisma.kv, w = CaricoLineareLastra(d, e.passi);
  e.Mr = Conto(d.Ls) * d.Ls * w / 2 + ConSisma(kv, d.Pl) * d.b * d.Ls;
  e.Ms = (Conto(d.Ls) + d.Lm) * (Conto(d.Ls) + d.Lm) * (MenoSisma(kv, d.gs) * d.t * d.b) / 2;
  return e;
}

// About the ends of the brackets, when the slab reaches farther out than they do.
Equilibrio SulleMensole(const DatiBalcone& d) {
  Equilibrio equilibrio;
  if (d.b <= d.Bm) return equilibrio;
  const double kv = d.sisma.kv;
  AnnotaSisma(d, equilibrio.passi);
  const double e = Annota(equilibrio.passi, "Sporto della lastra oltre le mensole, e = La - Bm",
                          Conto(d.b) - d.Bm, "m");
  const double fronte =
      Annota(equilibrio.passi, "Fronte della lastra, F = 2 Ls + Lm", Conto(2) * d.Ls + d.Lm, "m");
  const Conto bordi = kv == 0 ? Conto(2) * d.Pl : Conto(2) * (Conto(1) + kv) * d.Pl;
  const double w =
      Annota(equilibrio.passi, "Carico al metro di sporto, w = gs s F + 2 Pl + qa F",
             ConSisma(kv, d.gs) * d.t * fronte + bordi + ConSisma(d.sisma, d.qa) * fronte, "Kg/ml");
  equilibrio.Mr = Conto(e) * e * w / 2 + ConSisma(kv, d.Pl) * fronte * e;
  equilibrio.Ms = Conto(d.Bm) * d.Bm * (MenoSisma(kv, d.gs) * d.t * fronte) / 2;
  return equilibrio;
}

// A stress of the results and its steps.
struct Esito {
  RisultatiBalcone& valori;
  CateneBalcone* perche;

  void Metti(ElementoBalcone elemento, const Catena& passi, std::string formula,
             const Conto& conto) {
    valori[elemento] = conto;
    if (perche == nullptr) return;
    Catena& catena = (*perche)[elemento];
    catena = passi;
    catena.push_back(
        PassoMostrato(std::move(formula), conto.Testo(), conto, "Kg/cmq", kModelloBalcone));
  }
};

void TensioniLastra(const DatiBalcone& d, Esito& esito) {
  const SforziSpiegati lastra = SforziLastra(d);
  esito.Metti(SigmaLastra, lastra.passiM, "σ = M 6 / (s² La), in Kg/cmq",
              Conto(kMqInCmq) * lastra.M * 6 / (Conto(d.t) * d.t * d.b));
  esito.Metti(TauLastra, lastra.passiV, "τ = V 9 / (2 La s), in Kg/cmq",
              Conto(kMqInCmq) * lastra.V * 9 / (Conto(2) * d.b * d.t));
}

void TensioniLastraSemplice(const DatiBalcone& d, const SforziSpiegati& muro, Esito& esito) {
  esito.Metti(SigmaLastra, muro.passiM, "σ = 6 M / (Hi² L), in Kg/cmq",
              Conto(kMqInCmq) * 6 * muro.M / (Conto(d.si) * d.si * d.lunghezza));
  esito.Metti(TauLastra, muro.passiV, "τ = 9 V / (2 L Hi), in Kg/cmq",
              Conto(kMqInCmq) * 9 * muro.V / (Conto(2) * d.lunghezza * d.si));
}

// Shear and moment as the last steps.
SforziSpiegati Annotati(const Catena& passi, const char* taglio, const Conto& V,
                        const char* momento, const Conto& M) {
  SforziSpiegati sforzi{{V, M}, passi, passi};
  Annota(sforzi.passiV, taglio, V, "Kg");
  Annota(sforzi.passiM, momento, M, "Kg x m");
  return sforzi;
}

// What hangs on half the slab: the load along the wall, and once more the load of the edge. That
// the load along the wall, which has the width in it already, is taken times the width for the
// shear and as if it stood on each metre of the bracket for the moment is the method's own.
SforziSpiegati SforziDaLastra(const DatiBalcone& d, const Conto& taglioProprio,
                              const Conto& momentoProprio) {
  Catena passi;
  const double kv = d.sisma.kv, w = CaricoLineareLastra(d, passi);
  const double fronte = Annota(passi, "Fronte che grava su un appoggio, F = Lm / 2 + Ls",
                               Conto(d.Lm) / 2 + d.Ls, "m");
  return Annotati(
      passi, "Taglio all'incastro, V = w F La + peso proprio + Pl F",
      Conto(w) * fronte * d.b + taglioProprio + ConSisma(kv, d.Pl) * fronte,
      "Momento all'incastro, M = Bm² w F / 2 + peso proprio + Pl F Bm",
      Conto(d.Bm) * d.Bm * w * fronte / 2 + momentoProprio + ConSisma(kv, d.Pl) * fronte * d.Bm);
}

SforziSpiegati SforziPutrella(const DatiBalcone& d) {
  const double kv = d.sisma.kv, P = ProfiloNP(d.putrella).P;
  const Conto momento =
      kv == 0 ? Conto(d.Bm) * d.Bm * P / 2 : Conto(d.Bm) * d.Bm * (Conto(1) + kv) * P / 2;
  return SforziDaLastra(d, ConSisma(kv, P) * d.Bm, momento);
}

// The bracket weighs on its whole length with the section of its end, and with what it is higher at
// the wall as a triangle.
SforziSpiegati SforziMensola(const DatiBalcone& d) {
  const double kv = d.sisma.kv;
  const Conto fine = ConSisma(kv, d.gs) * d.b0 * d.he;
  const Conto rastremazione = ConSisma(kv, d.gs) * d.b0 * (Conto(d.hi) - d.he);
  return SforziDaLastra(d, rastremazione * d.Bm / 2 + fine * d.Bm,
                        Conto(d.Bm) * d.Bm * rastremazione / 6 + Conto(d.Bm) * d.Bm * fine / 2);
}

// The load of the edge counts as that of one metre, whatever the length of the slab.
SforziSpiegati SforziLastraSemplice(const DatiBalcone& d) {
  const double kv = d.sisma.kv;
  Conto w = Conto(d.lunghezza) * d.gs * d.se + Conto(2) * d.Pl;
  if (kv != 0) w = w * (Conto(1) + kv);
  Conto ripartito = Conto(d.lunghezza) * d.qa;
  if (kv != 0) ripartito = (Conto(1) + Conto(d.sisma.s) * kv) * d.lunghezza * d.qa;
  Catena passi;
  const double carico = Annota(passi, "Carico al metro di aggetto, w = L gs He + 2 Pl + L qa",
                               w + ripartito, "Kg/ml");
  const double rastremazione =
      Annota(passi, "Peso della rastremazione, G = gs L (Hi - He)",
             ConSisma(kv, d.gs) * d.lunghezza * (Conto(d.si) - d.se), "Kg/ml");
  const Conto bordo = ConSisma(kv, d.Pl);
  return Annotati(
      passi, "Taglio all'incastro, V = w La + G La / 2 + Pl",
      Conto(carico) * d.a + Conto(rastremazione) * d.a / 2 + bordo,
      "Momento all'incastro, M = La² w / 2 + La² G / 6 + Pl La",
      Conto(d.a) * d.a * carico / 2 + Conto(d.a) * d.a * rastremazione / 6 + bordo * d.a);
}

void TensioniPutrella(const DatiBalcone& d, const SforziSpiegati& muro, Esito& esito) {
  const ContiAcciaio tensioni = TensioniNelProfilo(d.putrella, muro.M, muro.V);
  const std::string profilo = "NP " + d.putrella + ", ";
  esito.Metti(SigmaAcciaio, muro.passiM, profilo + "σ = 100 M / W", tensioni.sigma);
  esito.Metti(TauAcciaio, muro.passiV, profilo + "τ = 100 V / ((H - 2 tf) tw), in mm",
              tensioni.tau);
}

void TensioniMensola(const DatiBalcone& d, const SforziSpiegati& muro, Esito& esito) {
  esito.Metti(SigmaMensola, muro.passiM, "σ = M 6 / (Hi² Ba), in Kg/cmq",
              Conto(kMqInCmq) * muro.M * 6 / (Conto(d.hi) * d.hi * d.b0));
  esito.Metti(TauMensola, muro.passiV, "τ = V 3 / (2 Ba Hi), in Kg/cmq",
              Conto(kMqInCmq) * muro.V * 3 / (Conto(2) * d.b0 * d.hi));
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
void PressioneSulMuro(const DatiBalcone& d, const SforziSpiegati& muro, Esito& esito) {
  const double Bw = LarghezzaNelMuro(d), pr = d.pr;
  const Conto p1 = 2 * (Conto(3) * muro.M / pr + Conto(2) * muro.V) / (Conto(10000) * Bw * pr);
  const Conto p2 =
      4 * (Conto(3) * muro.M / (Conto(2) * pr) + Conto(5) * muro.V / 4) / (Conto(10000) * Bw * pr);
  Catena passi = muro.passiM;
  passi.push_back(muro.passiV.back());
  Annota(passi, "Prima pressione, p1 = 2 (3 M / Pm + 2 V) / (B Pm), con B larghezza nel muro", p1,
         "Kg/cmq");
  Annota(passi, "Seconda pressione, p2 = 4 (3 M / (2 Pm) + 5 V / 4) / (B Pm)", p2, "Kg/cmq");
  esito.Metti(IncrementoMuratura, passi, "La maggiore delle due", std::max(p1, p2).Valore());
}

}  // namespace

// In the span the loads stand without the seismic factors, as they always have here.
SforziSpiegati SforziLastra(const DatiBalcone& d) {
  Catena passi;
  const double kv = d.sisma.kv, w = CaricoLineareLastra(d, passi);
  const double q = Annota(passi, "Carico della campata, q = s gs La + Pl + La qa",
                          Conto(d.t) * d.gs * d.b + d.Pl + Conto(d.b) * d.qa, "Kg/ml");
  const Conto bordo = ConSisma(kv, d.Pl) * d.b;
  const Conto M1 = Conto(d.Ls) * d.Ls * w / 2 + bordo * d.Ls;
  const Conto M2 =
      Conto(d.Lm) * d.Lm * q / 8 - Conto(d.Ls) * d.Ls * (MenoSisma(kv, d.gs) * d.t * d.b) / 2;
  const Conto V1 = Conto(w) * d.Ls + bordo, V2 = Conto(q) * d.Lm / 2;
  SforziSpiegati sforzi = Annotati(passi, "Taglio dello sbalzo laterale, V1 = w Ls + Pl La", V1,
                                   "Momento dello sbalzo laterale, M1 = Ls² w / 2 + Pl La Ls", M1);
  Annota(sforzi.passiV, "Taglio della campata, V2 = q Lm / 2", V2, "Kg");
  Annota(sforzi.passiM, "Momento della campata, M2 = Lm² q / 8 - Ls² (gs s La) / 2", M2, "Kg x m");
  sforzi.V = Annota(sforzi.passiV, "Il maggiore: V", std::max(V1, V2).Valore(), "Kg");
  sforzi.M = Annota(sforzi.passiM, "Il maggiore: M", std::max(M1, M2).Valore(), "Kg x m");
  return sforzi;
}

SforziSpiegati SforziAlMuro(const DatiBalcone& d) {
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

RisultatiBalcone VerificaBalcone(const DatiBalcone& dati, const ProsegueInstabile& prosegue,
                                 CateneBalcone* perche) {
  RisultatiBalcone risultati{};
  Esito esito{risultati, perche};
  const SforziSpiegati muro = SforziAlMuro(dati);
  if (dati.tipo == TipoBalcone::LastraSemplice) {
    TensioniLastraSemplice(dati, muro, esito);
  } else {
    Equilibrio lato = DiLato(dati), sporto = SulleMensole(dati);
    if ((lato.Ribalta() && !prosegue(Ribaltamento::SbalziLaterali)) ||
        (sporto.Ribalta() && !prosegue(Ribaltamento::SportoSuMensole))) {
      risultati[EsitoBalcone] = -1;
      return risultati;
    }
    if (perche != nullptr) {
      (*perche)[StabilitaLato] = lato.Spiega("Momento ribaltante, Mr = Ls² w / 2 + Pl La Ls",
                                             "Momento stabilizzante, Ms = (Ls + Lm)² gs s La / 2");
      (*perche)[StabilitaSporto] = sporto.Spiega("Momento ribaltante, Mr = e² w / 2 + Pl F e",
                                                 "Momento stabilizzante, Ms = Bm² gs s F / 2");
    }
    TensioniLastra(dati, esito);
    dati.tipo == TipoBalcone::Putrelle ? TensioniPutrella(dati, muro, esito)
                                       : TensioniMensola(dati, muro, esito);
  }
  PressioneSulMuro(dati, muro, esito);
  return risultati;
}

}  // namespace orm
