#include "structures/steel_beams/beams.h"

#include <algorithm>
#include <utility>

namespace orm {
namespace {
constexpr const char* kKgMl = "Kg/ml";
}  // namespace

double Interasse(const DatiPutrelle& dati) {
  return dati.tavellone.lunghezza + ProfiloNP(dati.putrella).b / 10;
}

double SpazioRiempimento(const DatiPutrelle& dati) { return dati.tavellone.lunghezza; }

double AltezzaRiempimento(const DatiPutrelle& dati) {
  return std::max(AltezzaProfilo(dati.putrella) / 10 - dati.tavellone.altezza, 0.0);
}

CarichiPutrella CarichiSullaPutrella(const DatiPutrelle& dati, Catena& passi) {
  const double i =
      Annota(passi, "Interasse delle putrelle, dal tavellone e dall'ala (b / 10), i",
             Conto(dati.tavellone.lunghezza) + Conto(ProfiloNP(dati.putrella).b) / 10, "cm");
  Conto permanenti;
  for (std::size_t k = 0; k < Sovraccarico; ++k) permanenti += dati.ripartiti[k];
  return {Annota(passi, "Sovraccarico di esercizio sulla putrella, qa",
                 Conto(dati.ripartiti[Sovraccarico]) * i / 100, kKgMl),
          Annota(passi, "Carichi permanenti ripartiti, uno dopo l'altro, sulla putrella, qp",
                 permanenti * i / 100, kKgMl),
          Annota(passi, "Peso proprio e carico diretto, d", Conto(dati.pesoProprio) + dati.diretto,
                 kKgMl)};
}

VerificaPutrella VerificaTensioni(const DatiPutrelle& dati, const Catena& passi,
                                  const Conto& taglio, const Conto& momento) {
  VerificaPutrella v{taglio, momento, {}, TensioniAcciaio(dati.acciaio), passi, passi};
  Annota(v.sigma, "Momento massimo, M", momento, "Kg x m");
  Annota(v.tau, "Taglio massimo, V", taglio, "Kg");
  const auto [sigma, tau] = TensioniNelProfilo(dati.putrella, momento, taglio);
  v.calcolate = {sigma, tau};
  const std::string profilo = " nella NP " + dati.putrella + ", ";
  v.sigma.push_back(PassoVerificato("Tensione normale" + profilo + "σ = 100 M / W", sigma, "Kg/cmq",
                                    v.ammesse.sigma));
  v.tau.push_back(
      PassoVerificato("Tensione tangenziale" + profilo + "τ = 100 V / ((H - 2 tf) tw), in mm", tau,
                      "Kg/cmq", v.ammesse.tau));
  return v;
}

Passaggio PassoVerificato(std::string regola, const Conto& conto, std::string unita,
                          double ammesso) {
  std::string confronto =
      (conto > ammesso ? "SUPERA il valore ammesso, " : "Non supera il valore ammesso, ") +
      CifraEsatta(ammesso) + " " + unita;
  Passaggio passo =
      PassoMostrato(std::move(regola), conto.Testo(), conto, std::move(unita), "###0.00");
  passo.note.push_back(std::move(confronto));
  return passo;
}

}  // namespace orm
