// The fee of testing: Table C on the amount of the works, in two tiers beyond 5,000 million Lire,
// a surcharge for testing during the works, and a fee by time for the revision of the accounts.
#include "cases/coa/coa.h"
#include "cases/coa/data.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/law/table_a.h"
#include "tariff/law/table_articles.h"
#include "tariff/law/table_hours.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

class NotaCoa : public Parcella {
 public:
  NotaCoa(Parcella parcella, const DatiCoa& dati)
      : Parcella(std::move(parcella)), d(dati), lire(ImportoInLire(dati.ImportoCollaudo)) {}

  void StampaSpecifica();
  void CalcolaOnorario();
  void CalcolaMaggiorazione();
  void CalcolaVacazione();
  void Chiudi();

 private:
  void UnoScaglione();
  void DueScaglioni();
  void StampaTabellaC(const Percentuale& P, double importo);
  void StampaTitoloOnorario();
  double StampaScaglione(const Percentuale& P, double base, double onorario);

  DatiCoa d;
  const double lire;  // the amount of the works
  double OnorarioBase = 0, Maggiorazione = 0, Vacazione = 0;
};

void NotaCoa::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  StampaLavori(1, "IMPORTO TOTALE LAVORI   :", d.ImportoCollaudo);
  Coefficiente = 0;  // unless the criterion finds one
  CompensiAccessori(lire);
}

void NotaCoa::StampaTabellaC(const Percentuale& P, double importo) {
  const std::string cifre = P.testo.substr(0, P.testo.find('%'));
  uscita.Line("Percentuale ( da Tabella C ) = " + cifre + "  su " + TestoImporto(importo));
}

void NotaCoa::StampaTitoloOnorario() {
  uscita.Line(kRigaOnorariCompensi);
  uscita.Line(Numero() + " ONORARIO  (" + NomePeriodoTariffario(d.PeriodoCollaudo) + ") ");
}

double NotaCoa::StampaScaglione(const Percentuale& P, double base, double onorario) {
  StampaRigaOnorario(1, P.testo + " x " + TestoImporto(base) + StringaCoefficiente + " ", onorario);
  return onorario;
}

// Beyond the limit the decree of 1987 splits the amount.
void NotaCoa::CalcolaOnorario() {
  if (d.ImportoCollaudo <= 0) return;
  if (lire <= kLimiteTabellaA || d.PeriodoCollaudo <= 4)
    UnoScaglione();
  else
    DueScaglioni();
}

// The cut comes before the division by 100, in Euro too.
void NotaCoa::UnoScaglione() {
  const Percentuale P = PercentualeDaTabellaC(d.PeriodoCollaudo, lire);
  StampaTabellaC(P, d.ImportoCollaudo);
  StampaTitoloOnorario();
  OnorarioBase =
      StampaScaglione(P, d.ImportoCollaudo, Int(d.ImportoCollaudo * P.valore * Coefficiente) / 100);
}

// Both figures behind the percentages are in Lire in a note in Euro as well, the limit even
// multiplied by the exchange rate a second time. The two fees in Lire are cut at different places.
void NotaCoa::DueScaglioni() {
  const double base1 = InValuta(kLimiteTabellaA);
  const double base2 = d.ImportoCollaudo - base1;
  const Percentuale P1 = PercentualeDaTabellaC(d.PeriodoCollaudo, kLimiteTabellaA);
  const Percentuale P2 = PercentualeDaTabellaC(d.PeriodoCollaudo, lire);
  StampaTabellaC(P1, ImportoInLire(kLimiteTabellaA));
  StampaTabellaC(P2, ImportoInLire(base2));
  StampaTitoloOnorario();
  if (!ModoLire) uscita.Line("ONORARIO  (" + NomePeriodoTariffario(d.PeriodoCollaudo) + ")  :");
  OnorarioBase = StampaScaglione(P1, base1, IntInLire(P1.valore * base1 * Coefficiente / 100));
  OnorarioBase += StampaScaglione(P2, base2,
                                  ModoLire ? Int(base2 * P2.valore * Coefficiente) / 100
                                           : base2 * P2.valore * Coefficiente / 100);
}

void NotaCoa::CalcolaMaggiorazione() {
  if (d.MaggiorazioneCollaudo <= 0) return;
  uscita.Line(Numero() + " Maggiorazione per collaudo in corso d'opera :  " +
              FormattaNumero(d.MaggiorazioneCollaudo, 2) + "%");
  const std::string base = FormattaNumero(OnorarioBase, DecimaliValuta());
  Maggiorazione = IntInLire(d.MaggiorazioneCollaudo * OnorarioBase / 100);
  StampaFormula(FormattaCopia(d.MaggiorazioneCollaudo / 100, 4) + " x " + base + " =",
                Maggiorazione);
}

// By time, but never more than its part of the fee without compensations. The rate of an hour is in
// Lire and stands unconverted in notes in Euro too.
void NotaCoa::CalcolaVacazione() {
  if (d.NumeroFacciate == 0) return;
  uscita.Line(Numero() + " Onorario a vacazione per revisione tecnico contabile");
  Vacazione = IntInLire(d.NumeroFacciate * kVacazioneProfessionista * kOrePerFacciata);
  std::string formula = "num. pagine " + NumberText(d.NumeroFacciate) + " x " +
                        TestoQuota(kOrePerFacciata) + NumberText(kVacazioneProfessionista);
  const double massimo = SenzaCompensi(OnorarioBase) * kMassimoRevisioneContabile;
  if (massimo < Vacazione) {
    Vacazione = massimo;
    formula = TestoQuota(kMassimoRevisioneContabile) +
              FormattaNumero(OnorarioBase, DecimaliValuta()) + " / " +
              Middle(StringaCoefficiente, 3);
  }
  StampaFormula(formula + " =", Vacazione);
}

void NotaCoa::Chiudi() {
  TotaleGenerale = Maggiorazione + OnorarioBase + Vacazione;
  const double Onorari = SenzaCompensi(IntInLire(TotaleGenerale - Vacazione)) + Vacazione;
  ChiudiParcella(Onorari, TotaleGenerale - Onorari);
}

}  // namespace

Parcella CalcoloCoa(Parcella parcella, const DatiCoa& dati) {
  NotaCoa nota(std::move(parcella), dati);
  nota.ApriParcella(
      dati.TipoCollaudo == 1
          ? "per le prestazioni di Collaudo amministrativo relative a :"
          : "per le prestazioni di Certificazione di Regolare Esecuzione relative a :");
  nota.StampaSpecifica();
  nota.CalcolaOnorario();
  nota.CalcolaMaggiorazione();
  nota.CalcolaVacazione();
  nota.Chiudi();
  return nota;
}

}  // namespace orm
