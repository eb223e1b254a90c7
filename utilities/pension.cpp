// The reckoning of the pension.
#include "utilities/pension.h"

#include <algorithm>
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
  const int contati = std::min(Anni, kAnniMedia);
  return {contati, std::min(Anni, kAnniReddito) - contati};
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
    const AnnoReddito& anno = kMassimaliReddito[i];
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
  for (std::size_t n = 0; n < kFasceReddito.size(); ++n) {
    const bool dentro =
        (n == 0 || medio >= kFasceReddito[n].da + 1) && medio <= kFasceReddito[n].fino;
    if (!dentro) continue;
    Pensione = 0;
    for (std::size_t f = 0; f < n; ++f)
      Pensione += Int(Rendimento(kFasceReddito[f], Anni, Giorni) *
                      (kFasceReddito[f].fino - kFasceReddito[f].da));
    Pensione += Int(Rendimento(kFasceReddito[n], Anni, Giorni) * (medio - kFasceReddito[n].da));
    return;
  }
}

}  // namespace orm
