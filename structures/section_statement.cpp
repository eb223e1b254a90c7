#include "structures/section_statement.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "runtime/explanation/steps.h"
#include "runtime/numbers.h"
#include "structures/solvers/working_stress.h"

namespace orm {
namespace {

constexpr const char* kKgCmq = "Kg/cmq";

// Bars at one depth from the compressed edge, and their stress.
struct Ferri {
  std::string nome;
  double d = 0, tensione = 0;
  Conto conto;
};

// What both kinds of section tell alike. Depths are measured from the compressed edge.
struct Prospetto {
  double altezza = 0, M = 0;  // cm, kg x cm
  RisultatiFlessione r;
  TensioniAmmissibili ammesse;
  bool provaCompresso = false;
  const char* modello = kModelloTensione;
  Catena asse = {};  // how the axis was found
  Catena inerzia = {};
  std::vector<Ferri> ferri = {};
  bool Capovolta() const { return M < 0; }
};

Conto Quadrato(const Conto& a) { return a * a; }

Passaggio Premessa(const Prospetto& p) {
  return PassoDiParole(
      "Metodo delle tensioni ammissibili: le sezioni restano piane, il calcestruzzo non resiste a "
      "trazione, l'acciaio conta n = 15 volte la sua area" +
      std::string(p.Capovolta() ? ". Il momento è negativo e tende le fibre superiori: le distanze "
                                  "d e x sono dal bordo inferiore, che è quello compresso"
                                : ". Le distanze d e x sono dal bordo superiore, che è quello "
                                  "compresso"));
}

Catena SpiegaAsse(const Prospetto& p) {
  Catena catena{Premessa(p)};
  catena.insert(catena.end(), p.asse.begin(), p.asse.end());
  const std::string conto =
      p.Capovolta() ? ScriviConto("{} - {}", {p.altezza, p.r.x}) : std::string();
  catena.push_back(PassoMostrato("Distanza dell'asse neutro dal bordo superiore", conto, p.r.asse,
                                 "cm", kModelloAsse));
  return catena;
}

// How a stress stands to the one that is allowed, which it must not reach.
std::string Confronto(double tensione, double ammessa) {
  return std::string(std::fabs(tensione) < ammessa ? "È minore di quella ammissibile, "
                                                   : "NON È MINORE di quella ammissibile, ") +
         CifraEsatta(ammessa) + " " + kKgCmq;
}

Passaggio Momento(const Prospetto& p) {
  return {.regola = "Momento flettente M, in valore assoluto",
          .conto = ScriviConto("{} x 100", {std::fabs(p.M) / 100}),
          .risultato = std::fabs(p.M),
          .unita = "Kg x cm"};
}

Catena SpiegaCls(const Prospetto& p, bool superiore) {
  const double tensione = superiore ? p.r.clsSup : p.r.clsInf;
  if (superiore == p.Capovolta())
    return {PassoMostrato("Il bordo è teso, e il calcestruzzo non vi resiste", "", tensione, kKgCmq,
                          p.modello)};
  const Conto conto = Conto(-std::fabs(p.M)) * p.r.x / p.r.inerzia;
  Passaggio sigma =
      PassoMostrato("Bordo compresso: σ = - M x / J", conto.Testo(), tensione, kKgCmq, p.modello);
  sigma.note.push_back(Confronto(tensione, p.ammesse.cls));
  return Unite(Unite({Momento(p)}, p.inerzia), {std::move(sigma)});
}

Catena SpiegaAcciaio(const Prospetto& p, bool compresso) {
  const double estremo = compresso ? p.r.minimo : p.r.massimo;
  const auto di = std::ranges::find(p.ferri, estremo, &Ferri::tensione);
  const char* quale = compresso ? "compressione" : "trazione";
  if (di == p.ferri.end()) {
    std::string perche = "Nessun ferro è " + std::string(compresso ? "compresso" : "teso");
    if (estremo != 0) perche += ": resta il valore della verifica precedente";
    return {PassoMostrato(std::move(perche), "", estremo, kKgCmq, p.modello)};
  }
  Catena catena = Unite({Momento(p)}, p.inerzia);
  for (const Ferri& ferri : p.ferri)
    catena.push_back(
        {.regola = ferri.nome + ", d = " + CifraEsatta(ferri.d) + " cm: σ = n M (d - x) / J",
         .conto = ferri.conto.Testo(),
         .risultato = ferri.tensione,
         .unita = kKgCmq});
  Passaggio passo = PassoMostrato("La maggiore " + std::string(quale) + ": " + di->nome, "",
                                  estremo, kKgCmq, p.modello);
  if (!compresso || p.provaCompresso) passo.note.push_back(Confronto(estremo, p.ammesse.acciaio));
  catena.push_back(std::move(passo));
  return catena;
}

CateneFlessione Catene(const Prospetto& p) {
  return {SpiegaAsse(p), SpiegaCls(p, true), SpiegaCls(p, false), SpiegaAcciaio(p, !p.Capovolta()),
          SpiegaAcciaio(p, p.Capovolta())};
}

// ---------------------------------------------------------------- T shapes

// As it is reckoned: turned over under a negative moment.
DatiSezione ComeSiCalcola(DatiSezione z) {
  if (z.M > 0) return z;
  std::swap(z.B, z.Bi);
  std::swap(z.s, z.si);
  for (StratoT& strato : z.strati)
    if (strato.A != 0 && strato.d != 0) strato.d = z.H - strato.d;
  return z;
}

// The part of the concrete above the axis; `potenza` 2 for its first moment, 3 for its second.
struct Calcestruzzo {
  Conto conto;
  std::string formula;
};

Calcestruzzo MomentoCls(const DatiSezione& z, double asse, bool inerzia) {
  const Conto x(asse);
  const auto striscia = [&](const Conto& larga, const Conto& alta) {
    return inerzia ? larga * (alta * alta * alta) / 3 : larga * Quadrato(alta) / 2;
  };
  const std::string potenza = inerzia ? "³ / 3" : "² / 2";
  if (asse <= z.s) return {striscia(z.B, x), "B x" + potenza};
  const Conto ala = Conto(z.B) - z.b, braccio = x - Conto(z.s) / 2;
  const Conto s(z.s);
  Calcestruzzo c{striscia(z.b, x), "b x" + potenza};
  if (z.s > 0) {
    if (inerzia)
      c.conto = c.conto + ala * (s * s * s) / 12 + ala * s * Quadrato(braccio);
    else
      c.conto += ala * s * braccio;
    c.formula +=
        inerzia ? " + (B - b) s³ / 12 + (B - b) s (x - s / 2)²" : " + (B - b) s (x - s / 2)";
  }
  if (asse > z.H - z.si) {
    c.conto += striscia(Conto(z.Bi) - z.b, x - (Conto(z.H) - z.si));
    c.formula += " + (Bi - b) (x - (H - si))" + potenza;
  }
  return c;
}

// ---------------------------------------------------------------- circles

Passaggio Angolo(std::string regola, double valore, const char* unita) {
  return {.regola = std::move(regola), .conto = "", .risultato = valore, .unita = unita};
}

// Of a circle by its half angle, under the names of its diameter and of the angle.
std::string FormulaSegmento(const std::string& D, const std::string& a) {
  return D + "⁴ (" + a + " (1 + 4 cos²" + a + ") / 64 - (15 - 2 sen²" + a + ") sen " + a + " cos " +
         a + " / 192)";
}

std::string FormulaParte(ParteInerzia::Quale quale) {
  switch (quale) {
    case ParteInerzia::Quale::Segmento:
      return "Segmento compresso, " + FormulaSegmento("D", "α");
    case ParteInerzia::Quale::Foro:
      return "Foro sopra l'asse, " + FormulaSegmento("Di", "β");
    case ParteInerzia::Quale::Acciaio:
      return "Acciaio, n volte: gli anelli, D² cos²α ΣA / 4 + Σ Da² A / 8, e i gruppi, Σ A (d - "
             "x)²";
    case ParteInerzia::Quale::TolteDalForo:
      return "Foro tutto compresso, termine che si toglie, (Di / 2)⁴ π / 64";
    default:
      return "Foro tutto compresso, termine che si aggiunge, π (Di / 2)² (D / 4 - D cos α / 2)²";
  }
}

// Part by part, then their sum.
Catena InerziaCircolare(const DatiCircolare& z, double t) {
  Catena catena{Angolo("Seno di α", std::sin(t), ""), Angolo("Coseno di α", std::cos(t), "")};
  Conto J;
  for (const ParteInerzia& parte : PartiInerzia(t, z)) {
    if (parte.quale == ParteInerzia::Quale::Foro) {
      const double u = SemiangoloForo(t, z);
      catena.push_back(
          Angolo("Semiangolo β della stessa corda nel foro, cos β = cos α D / Di", u, "rad"));
      catena.push_back(Angolo("Seno di β", std::sin(u), ""));
      catena.push_back(Angolo("Coseno di β", std::cos(u), ""));
    }
    const Conto valore = Annota(catena, FormulaParte(parte.quale), parte.conto, "cm4");
    parte.toglie ? J -= valore.Valore() : J += valore.Valore();
  }
  Annota(catena,
         "Momento d'inerzia della sezione reagente rispetto all'asse neutro, J, somma delle "
         "parti",
         J, "cm4");
  return catena;
}

}  // namespace

CateneFlessione SpiegaSezioneT(const DatiSezione& dati, const RisultatiSezione& risultati,
                               const TensioniAmmissibili& ammesse, const char* modello) {
  const DatiSezione z = ComeSiCalcola(dati);
  const double x = risultati.x;
  Prospetto p{.altezza = z.H, .M = dati.M, .r = risultati, .ammesse = ammesse, .modello = modello};
  Calcestruzzo statico = MomentoCls(z, x, false), inerzia = MomentoCls(z, x, true);
  Conto acciaio;
  for (std::size_t i = 0; i < z.strati.size(); ++i) {
    const auto& [A, d] = z.strati[i];
    if (A == 0) continue;
    acciaio += Conto(kModuloN) * A * (Conto(d) - x);
    inerzia.conto += Conto(kModuloN) * A * Quadrato(Conto(d) - x);
    p.ferri.push_back(
        {"Strato " + NumberText(static_cast<double>(i + 1)) + ", A = " + CifraEsatta(A) + " cmq", d,
         risultati.acciaio[i],
         (Conto(d) - x) * (Conto(std::fabs(dati.M)) * kModuloN) / risultati.inerzia});
  }
  statico.conto -= acciaio;
  p.asse = {
      {.regola = "Asse neutro, a cui la sezione ha momento statico nullo, per dimezzamenti "
                 "successivi dell'altezza fino a un intervallo di 0,001 cm, x",
       .conto = "",
       .risultato = x,
       .unita = "cm"},
      {.regola = "Quel che resta del momento statico, S = " + statico.formula + " - Σ n A (d - x)",
       .conto = statico.conto.Testo(),
       .risultato = statico.conto,
       .unita = "cmc"}};
  p.inerzia = {
      {.regola = "Momento d'inerzia della sezione reagente rispetto all'asse neutro, J = " +
                 inerzia.formula + " + Σ n A (d - x)²",
       .conto = inerzia.conto.Testo(),
       .risultato = risultati.inerzia,
       .unita = "cm4"}};
  return Catene(p);
}

CateneFlessione SpiegaSezioneC(const DatiCircolare& z, const RisultatiCircolare& risultati,
                               const TensioniAmmissibili& ammesse) {
  Prospetto p{.altezza = z.D, .M = z.M, .r = risultati, .ammesse = ammesse, .provaCompresso = true};
  const double x = risultati.x;
  const bool capovolta = p.Capovolta();
  const auto aggiungi = [&](const char* nome, double area, const Conto& d, PuntoArmatura dritta,
                            PuntoArmatura girata) {
    if (area == 0) return;
    const double tensione = risultati.acciaio[capovolta ? girata : dritta];
    p.ferri.push_back({nome + (", A = " + CifraEsatta(area)) + " cmq", d, tensione,
                       Conto(std::fabs(z.M)) * kModuloN * (d - x) / risultati.inerzia});
  };
  // Rings are their own mirror image; of the groups the second turns over only with the first.
  const auto anello = [&](double D, bool sopra) {
    return sopra ? Conto(z.D) / 2 - Conto(D) / 2 : Conto(D) / 2 + Conto(z.D) / 2;
  };
  const bool girano = capovolta && z.d1 != 0;
  const auto gruppo = [&](double d) { return girano && d != 0 ? Conto(z.D) - d : Conto(d); };
  aggiungi("Anello 1, verso il bordo compresso", z.Ad1, anello(z.Dd1, true), Sopra1, Sotto1);
  aggiungi("Anello 1, verso il bordo teso", z.Ad1, anello(z.Dd1, false), Sotto1, Sopra1);
  aggiungi("Anello 2, verso il bordo compresso", z.Ad2, anello(z.Dd2, true), Sopra2, Sotto2);
  aggiungi("Anello 2, verso il bordo teso", z.Ad2, anello(z.Dd2, false), Sotto2, Sopra2);
  aggiungi("Gruppo 1", z.Ac1, gruppo(z.d1), Gruppo1, Gruppo2);
  aggiungi("Gruppo 2", z.Ac2, gruppo(z.d2), Gruppo2, Gruppo1);
  const double t = risultati.semiangolo;
  p.asse = {{.regola = "Semiangolo α del segmento compresso, a cui la sezione ha momento statico "
                       "nullo, per dimezzamenti successivi fino a dieci secondi d'arco",
             .conto = "",
             .risultato = t,
             .unita = "rad"}};
  Annota(p.asse, "Asse neutro, x = (1 - cos α) D / 2", (1 - Conto(std::cos(t))) * z.D / 2, "cm");
  p.inerzia = InerziaCircolare(ComeVerificata(z), t);
  return Catene(p);
}

}  // namespace orm
