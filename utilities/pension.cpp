// The reckoning of the pension.
#include "utilities/pension.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <utility>

#include "runtime/explanation/steps.h"
#include "runtime/numbers.h"

namespace orm {
namespace {

// How many years count, and how many of the worst are set aside.
struct AnniUtili {
  int contati, scartati;
};

AnniUtili Scelta(int Anni) {
  const int contati = std::min(Anni, kAnniMedia);
  return {contati, std::min(Anni, kAnniReddito) - contati};
}

std::string InLire(double lire) { return "L. " + CifraEsatta(lire); }

// Yield of a band for the length of contribution.
Conto Rendimento(const FasciaReddito& fascia, int Anni, int Giorni) {
  return Conto(Anni) * fascia.perAnno / 100 + Conto(Giorni) * fascia.perGiorno / 100;
}

// An income as it counts: capped, then revalued.
struct Rivalutato {
  double valore = 0;
  int anno = 0;
};

Rivalutato Rivaluta(double reddito, std::size_t i, Catena* passi) {
  const AnnoReddito& regola = kMassimaliReddito[i];
  const bool intero = reddito < regola.limite;
  const Conto valore = Conto(intero ? reddito : regola.valore) * regola.rivalutazione;
  const int anno = kPrimoAnno + static_cast<int>(i);
  if (passi != nullptr)
    passi->push_back({.regola = NumberText(anno) + ", reddito di " + InLire(reddito) +
                                (intero ? " sotto il massimale di " + InLire(regola.limite)
                                        : " non inferiore a " + InLire(regola.limite) +
                                              ", preso per " + InLire(regola.valore)) +
                                ", rivalutato",
                      .conto = valore.Testo(),
                      .risultato = valore,
                      .unita = "Lire"});
  return {valore, anno};
}

std::string AnniDi(std::span<const Rivalutato> redditi) {
  std::string testo;
  for (const Rivalutato& reddito : redditi)
    if (reddito.anno != 0) testo += (testo.empty() ? "" : ", ") + NumberText(reddito.anno);
  return testo;
}

// The part of a band, cut to the Lira.
double QuotaDiFascia(const FasciaReddito& fascia, int Anni, int Giorni, const Conto& reddito,
                     Catena* passi) {
  const Conto quota = Rendimento(fascia, Anni, Giorni) * reddito;
  const double intera = Int(quota);
  if (passi != nullptr)
    passi->push_back(
        {.regola = "Fascia di reddito " + (fascia.da == 0 ? "" : "da " + InLire(fascia.da) + " ") +
                   "fino a " + InLire(fascia.fino) + ", rendimento di " + NumberText(Anni) +
                   " anni e " + NumberText(Giorni) + " giorni per il reddito che vi cade",
         .conto = quota.Testo(),
         .risultato = quota,
         .unita = "Lire",
         .tagli = {{TipoTaglio::ParteIntera, 0, quota, intera}}});
  return intera;
}

}  // namespace

double RedditoMedio(const RedditiAnnui& redditi, int Anni, Catena* passi) {
  // Places from 1; the eighteenth holds 0 and takes part in the ordering.
  std::array<Rivalutato, kAnniReddito + 2> Reddito{};
  const auto [contati, scartati] = Scelta(Anni);
  for (std::size_t i = 0; i < redditi.size(); ++i) {
    const bool visto = static_cast<int>(i) < contati + scartati;
    Reddito[i + 1] = Rivaluta(redditi[i], i, visto ? passi : nullptr);
  }

  // An ordering cut short: each walk sinks the lowest of the first entries behind those that count.
  // It begins at the first row, so with fewer than 17 years the earliest years are the ones seen.
  for (int giro = 0; giro < scartati; ++giro)
    for (int c = 1; c <= contati + scartati; ++c) {
      const auto qui = static_cast<std::size_t>(c);
      if (Reddito[qui].valore < Reddito[qui + 1].valore) std::swap(Reddito[qui], Reddito[qui + 1]);
    }

  const std::span<const Rivalutato> contano(&Reddito[1], static_cast<std::size_t>(contati));
  Conto somma;
  for (const Rivalutato& reddito : contano) somma += reddito.valore;
  const Conto medio = somma / contati;
  if (passi != nullptr)
    passi->push_back({.regola = "Reddito medio dei " + NumberText(contati) +
                                " redditi rivalutati più alti, quelli degli anni " +
                                AnniDi(contano),
                      .conto = medio.Testo(),
                      .risultato = medio,
                      .unita = "Lire"});
  return medio;
}

void PensioneDelReddito(double medio, int Anni, int Giorni, double& Pensione, Catena* passi) {
  for (std::size_t n = 0; n < kFasceReddito.size(); ++n) {
    const FasciaReddito& ultima = kFasceReddito[n];
    const bool dentro = (n == 0 || medio >= ultima.da + 1) && medio <= ultima.fino;
    if (!dentro) continue;
    Conto pensione;
    for (std::size_t f = 0; f < n; ++f)
      pensione += QuotaDiFascia(kFasceReddito[f], Anni, Giorni,
                                Conto(kFasceReddito[f].fino) - kFasceReddito[f].da, passi);
    pensione += QuotaDiFascia(ultima, Anni, Giorni, Conto(medio) - ultima.da, passi);
    if (passi != nullptr) Annota(*passi, "Pensione", pensione, "Lire");
    Pensione = pensione;
    return;
  }
  if (passi != nullptr)
    passi->push_back({.regola = "Il reddito medio non cade in nessuna fascia, e resta la pensione "
                                "del calcolo precedente",
                      .conto = "",
                      .risultato = Pensione,
                      .unita = "Lire"});
}

}  // namespace orm
