// The reckoning of the pension.
#include "utilities/pension.h"

#include <cstddef>
#include <utility>

#include "runtime/numbers.h"

namespace orm {
namespace {

// How many years count, and how many of the worst are set aside.
struct AnniUtili {
  int contati, scartati;
};

AnniUtili Scelta(int Anni) {
  if (Anni >= 17) return {12, 5};
  if (Anni >= 12) return {12, Anni - 12};
  return {Anni, 0};
}

// Yield of a band for the length of contribution.
double Rendimento(const FasciaReddito& fascia, int Anni, int Giorni) {
  return Anni * fascia.perAnno / 100 + Giorni * fascia.perGiorno / 100;
}

}  // namespace

double RedditoMedio(const RedditiAnnui& redditi, int Anni) {
  // Places from 1; the eighteenth holds 0 and takes part in the ordering.
  std::array<double, kAnniReddito + 2> Reddito{};
  for (std::size_t i = 0; i < redditi.size(); ++i) {
    const AnnoReddito& anno = kAnni[i];
    Reddito[i + 1] = (redditi[i] < anno.limite ? redditi[i] : anno.valore) * anno.rivalutazione;
  }

  // An ordering cut short: each walk sinks the lowest of the first entries behind those that count.
  // It begins at the first row, so with fewer than 17 years the earliest years are the ones seen.
  const auto [contati, scartati] = Scelta(Anni);
  for (int giro = 0; giro < scartati; ++giro)
    for (int c = 1; c <= contati + scartati; ++c) {
      const auto qui = static_cast<std::size_t>(c);
      if (Reddito[qui] < Reddito[qui + 1]) std::swap(Reddito[qui], Reddito[qui + 1]);
    }

  double somma = 0;
  for (int i = 1; i <= contati; ++i) somma += Reddito[static_cast<std::size_t>(i)];
  return somma / contati;
}

void PensioneDelReddito(double medio, int Anni, int Giorni, double& Pensione) {
  for (std::size_t n = 0; n < kFasce.size(); ++n) {
    const bool dentro = (n == 0 || medio >= kFasce[n].da + 1) && medio <= kFasce[n].fino;
    if (!dentro) continue;
    Pensione = 0;
    for (std::size_t f = 0; f < n; ++f)
      Pensione += Int(Rendimento(kFasce[f], Anni, Giorni) * (kFasce[f].fino - kFasce[f].da));
    Pensione += Int(Rendimento(kFasce[n], Anni, Giorni) * (medio - kFasce[n].da));
    return;
  }
}

}  // namespace orm
