// Accessory compensations.
#include "tariff/accessory_compensations.h"

#include <algorithm>

#include "runtime/numbers.h"
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

void Parcella::CompensiAccessori(double lire, ModoCompensi modo) {
  if (modo == ModoCompensi::Nessuno || lire == 0) {
    Coefficiente = modo == ModoCompensi::Nessuno ? 1 : 0;
    StringaCoefficiente.clear();
    return;
  }
  std::string percentuale;
  // Both are cut to their printed decimals, the coefficient to two more.
  const auto tagliati = [&](double P) {
    int decimali = 0;
    DecimaliPercentuale(lire, decimali, criteri.DecimaliCompensi);
    percentuale = FormattaNumero(P, decimali);
    Coefficiente = P / 100 + 1;
    StringaCoefficiente = " x " + FormattaNumero(Coefficiente, decimali + 2);
  };
  // Both stand as plain numbers, with the decimal point; 0 % prints nothing.
  const auto comeSono = [&](double P) {
    Coefficiente = P / 100 + 1;
    const bool nulli = Coefficiente == 1;
    percentuale = nulli ? "" : NumberText(P);
    StringaCoefficiente = nulli ? "" : " x " + NumberText(Coefficiente);
  };
  const std::string& tipo = criteri.TipoPercentualeCompensi;
  const bool conImporto = tipo == "CALCOLATA" || tipo == "NUOVA TARIFFA";
  if (tipo == "CALCOLATA") tagliati(scaglioni.PercCompensiAccessoriCfg(lire));
  if (tipo == "NUOVA TARIFFA") tagliati(PercCompensiNuovaTariffaLire(lire));
  if (tipo == "ASSEGNATA") comeSono(criteri.PercCompensiAssegnata);
  if (tipo == "CALABRIA") comeSono(PercentualeCalabria(lire, criteri.ResidenzaCollaudatore));
  if (modo != ModoCompensi::Stampa || Coefficiente == 1) return;

  uscita.Line(kRigaCompensiAccessori);
  uscita.Text("Percentuale : " + percentuale + "%");
  if (conImporto) {
    uscita.Text(" su ");
    StampaLavori(InValuta(lire));
  } else {
    uscita.EndLine();
  }
}

double Parcella::SenzaCompensi(double onorario) const {
  return Coefficiente == 0 ? 0 : onorario / Coefficiente;
}

}  // namespace orm
