// Accessory compensations.
#include "tariff/accessory_compensations.h"

#include <algorithm>

#include "runtime/numbers.h"
#include "tariff/chains/compensation_chains.h"
#include "tariff/explanations.h"
#include "tariff/law/table_compensations.h"
#include "tariff/money.h"
#include "tariff/parcella.h"
#include "tariff/percentages.h"

namespace orm {
namespace {

// What the criterion of the Region Calabria gives for testing fees, by the residence of the tester.
double PercentualeCalabria(double importo, const std::string& residenza) {
  const auto fascia = std::ranges::find_if(kFasceCalabria, [importo](const FasciaCalabria& f) {
    return importo >= f.da && importo <= f.fino;
  });
  if (fascia == kFasceCalabria.end()) return 0;
  if (residenza == "FUORIREGIONE") return fascia->fuoriRegione;
  if (residenza == "OLTRE100KM") return fascia->oltre100Km;
  return residenza == "ENTRO100KM" ? fascia->entro100Km : 0;
}

double PercCompensi2001(double importo, const Compensi2001& tratto) {
  constexpr double calo = kCompensiMassimi2001 - kCompensiMinimi2001;
  if (importo <= tratto.fino) return kCompensiMassimi2001;
  if (importo > tratto.a) return kCompensiMinimi2001;
  if (importo < tratto.da) return 0;
  return kCompensiMassimi2001 - calo * (importo - tratto.da) / tratto.ampiezza;
}

}  // namespace

double PercCompensiNuovaTariffaLire(double importo) {
  return PercCompensi2001(importo, kCompensi2001Lire);
}

double PercCompensiNuovaTariffaEuro(double importo) {
  return PercCompensi2001(importo, kCompensi2001Euro);
}

void Parcella::CompensiSuLavori(const Conto& importo, std::string_view regola) {
  Catena lavori;
  if (spiegazioni.Attive())
    lavori = Unite({PassoImporto(std::string(regola), importo)}, CatenaInLire(importo));
  CompensiAccessori(ImportoInLire(importo), ModoCompensi::Stampa, lavori);
}

void Parcella::CompensiSulMaggiore(const Conto& progetto, const Conto& direzione) {
  std::string regola;
  if (spiegazioni.Attive()) {
    const bool diProgetto = progetto >= direzione;
    regola = std::string("Importo dei lavori: somma di quelli ") +
             (diProgetto ? "di progetto; quella dei lavori diretti o eseguiti, "
                         : "diretti o eseguiti; quella dei lavori di progetto, ") +
             TestoImporto(diProgetto ? direzione : progetto) + " " + Valuta() +
             (diProgetto ? ", non la supera" : ", è minore");
  }
  CompensiSuLavori(std::max(progetto, direzione), regola);
}

void Parcella::CompensiAccessori(double lire, ModoCompensi modo, const Catena& lavori) {
  CatenaCompensi.clear();
  if (modo == ModoCompensi::Nessuno || lire == 0) {
    Coefficiente = modo == ModoCompensi::Nessuno ? 1 : 0;
    StringaCoefficiente.clear();
    if (modo != ModoCompensi::Nessuno && spiegazioni.Attive())
      CatenaCompensi = {{"Senza importi di lavori il coefficiente dei compensi è 0", "", 0}};
    return;
  }
  std::string percentuale;
  Catena catena;
  // Both are cut to their printed decimals, the coefficient to two more.
  const auto tagliati = [&](double P, auto&& passo) {
    const double intera = P;
    int decimali = 0;
    DecimaliPercentuale(lire, decimali, criteri.DecimaliCompensi);
    percentuale = FormattaNumero(P, decimali);
    const double somma = P / 100 + 1;
    Coefficiente = somma;
    StringaCoefficiente = " x " + FormattaNumero(Coefficiente, decimali + 2);
    if (!spiegazioni.Attive()) return;
    catena = {passo(intera), PassoCoefficiente(P, somma)};
    catena[0].tagli = {{TipoTaglio::Decimali, decimali, intera, P}};
    if (Toglie(catena[0].tagli[0]))
      catena[0].note = {MotivoDecimali(decimali, criteri.DecimaliCompensi)};
    catena[1].tagli = {{TipoTaglio::Decimali, decimali + 2, somma, Coefficiente}};
  };
  // Both stand as plain numbers, with the decimal point; 0 % prints nothing.
  const auto comeSono = [&](double P, auto&& passo) {
    Coefficiente = P / 100 + 1;
    const bool nulli = Coefficiente == 1;
    percentuale = nulli ? "" : NumberText(P);
    StringaCoefficiente = nulli ? "" : " x " + NumberText(Coefficiente);
    if (spiegazioni.Attive()) catena = {passo(P), PassoCoefficiente(P, Coefficiente)};
  };
  const std::string& tipo = criteri.TipoPercentualeCompensi;
  const bool conImporto = tipo == "CALCOLATA" || tipo == "NUOVA TARIFFA";
  if (tipo == "CALCOLATA") {
    Interpolazione lettura;
    std::string nota;
    tagliati(scaglioni.PercCompensiAccessoriCfg(lire, &lettura, &nota),
             [&](double P) { return PassoScaglioniCompensi(lettura, nota, P); });
  }
  if (tipo == "NUOVA TARIFFA")
    tagliati(PercCompensiNuovaTariffaLire(lire),
             [&](double P) { return PassoCompensi2001(lire, P); });
  if (tipo == "ASSEGNATA") comeSono(criteri.PercCompensiAssegnata, PassoCompensiAssegnati);
  if (tipo == "CALABRIA")
    comeSono(PercentualeCalabria(lire, criteri.ResidenzaCollaudatore), [&](double P) {
      return PassoCompensiCalabria(lire, criteri.ResidenzaCollaudatore, P);
    });
  if (!catena.empty()) CatenaCompensi = {InComune([catena] { return catena; })};
  if (modo != ModoCompensi::Stampa || Coefficiente == 1) return;

  uscita.Line(kRigaCompensiAccessori);
  uscita.Text("Percentuale : " + percentuale + "%");
  if (conImporto) {
    uscita.Text(" su ");
    StampaLavori(InValuta(lire));
    Spiega([&] { return Unite(lavori, CatenaInValuta(lire)); });
  } else {
    uscita.EndLine();
  }
  spiegazioni.Riga(uscita.Contents(), [&] {
    Passaggio passo = catena.front();
    passo.cifra = percentuale + "%";
    return Catena{std::move(passo)};
  });
}

double Parcella::SenzaCompensi(double onorario) const {
  return Coefficiente == 0 ? 0 : onorario / Coefficiente;
}

}  // namespace orm
