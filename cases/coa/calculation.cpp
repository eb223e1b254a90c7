// The fee of testing: Table C on the amount of the works, in two tiers beyond 5,000 million Lire,
// a surcharge for testing during the works, and a fee by time for the revision of the accounts.
#include <string>

#include "cases/coa/coa.h"
#include "cases/coa/data.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/accessory_compensations.h"
#include "tariff/files/closing_line.h"
#include "tariff/final_account.h"
#include "tariff/law/table_a.h"
#include "tariff/law/table_articles.h"
#include "tariff/law/table_hours.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/percentages.h"
#include "tariff/report.h"

namespace orm {
namespace {

struct Percentuale {
  double valore;  // cut to what its text shows
  std::string testo;
};

class NotaCoa {
 public:
  NotaCoa(RunState& run, const DatiCoa& dati)
      : stato(run),
        uscita(run.NumFileUscita),
        d(dati),
        ImportoInLire(run.ModoLire ? d.ImportoCollaudo : EuroInLire(d.ImportoCollaudo)) {}

  void StampaImporto();
  void CalcolaCompensi() {
    CompensiAccessori(stato, ImportoInLire, ModoCompensi::Stampa, Coefficiente,
                      StringaCoefficiente);
  }
  void CalcolaOnorario();
  void CalcolaMaggiorazione();
  void CalcolaVacazione();
  void Chiudi();

 private:
  void UnoScaglione();
  void DueScaglioni();
  Percentuale TabellaC(double lire) const;
  void StampaPercentuale(const Percentuale& P, double importo);
  void StampaTitoloOnorario();
  void StampaOnorario(const Percentuale& P, double base, double& onorario);

  std::string Valuta(double valore) const { return FormattaCopia(valore, stato.DecimaliValuta()); }
  std::string Numero() { return NumberText(++numero) + " -"; }
  double IntInLire(double valore) const { return stato.ModoLire ? Int(valore) : valore; }
  // Without any amount of works there is no coefficient and nothing to divide.
  double DivisoCoefficiente(double valore) const {
    return Coefficiente == 0 ? 0 : valore / Coefficiente;
  }

  RunState& stato;
  ReportPrinter& uscita;
  DatiCoa d;
  double ImportoInLire;
  double Coefficiente = 0;
  std::string StringaCoefficiente;
  int numero = 0;  // of the fees printed
  double OnorarioBase = 0, Maggiorazione = 0, Vacazione = 0;
};

void NotaCoa::StampaImporto() {
  uscita.Line(kRigaImporti);
  uscita.Text("IMPORTO TOTALE LAVORI   :")
      .Tab(48)
      .Line(StringaImporto(Valuta(d.ImportoCollaudo), TipoImporto::Lavori, stato.ModoLire));
}

Percentuale NotaCoa::TabellaC(double lire) const {
  Percentuale P{0, ""};
  PercentualeTabellaContabilita(d.PeriodoCollaudo, lire, P.valore);
  int decimali = 0;
  DecimaliPercentuale(lire, decimali, stato.criteri.DecimaliTabelle);
  FormattaNumero(P.valore, P.testo, decimali);
  return P;
}

void NotaCoa::StampaPercentuale(const Percentuale& P, double importo) {
  uscita.Line("Percentuale ( da Tabella C ) = " + P.testo + "  su " + Valuta(importo));
}

void NotaCoa::StampaTitoloOnorario() {
  uscita.Line(kRigaOnorariCompensi);
  uscita.Line(Numero() + " ONORARIO  (" + NomePeriodoTariffario(d.PeriodoCollaudo) + ") ");
}

void NotaCoa::StampaOnorario(const Percentuale& P, double base, double& onorario) {
  StampaRigaOnorario(stato, 1, P.testo + "% x " + Valuta(base) + StringaCoefficiente + " ",
                     onorario);
}

// Beyond the limit the decree of 1987 splits the amount.
void NotaCoa::CalcolaOnorario() {
  if (d.ImportoCollaudo <= 0) return;
  if (ImportoInLire <= kLimiteTabellaA || d.PeriodoCollaudo <= 4)
    UnoScaglione();
  else
    DueScaglioni();
}

// The cut comes before the division by 100, in Euro too.
void NotaCoa::UnoScaglione() {
  const Percentuale P = TabellaC(ImportoInLire);
  StampaPercentuale(P, d.ImportoCollaudo);
  OnorarioBase = Int(d.ImportoCollaudo * P.valore * Coefficiente) / 100;
  StampaTitoloOnorario();
  StampaOnorario(P, d.ImportoCollaudo, OnorarioBase);
}

// Both figures behind the percentages are in Lire in a note in Euro as well, the limit even
// multiplied by the exchange rate a second time. The two fees in Lire are cut at different places.
void NotaCoa::DueScaglioni() {
  const bool lire = stato.ModoLire;
  const double base1 = lire ? kLimiteTabellaA : LireInEuro(kLimiteTabellaA);
  const double base2 = d.ImportoCollaudo - base1;
  const Percentuale P1 = TabellaC(kLimiteTabellaA), P2 = TabellaC(ImportoInLire);
  StampaPercentuale(P1, lire ? kLimiteTabellaA : EuroInLire(kLimiteTabellaA));
  StampaPercentuale(P2, lire ? base2 : EuroInLire(base2));
  StampaTitoloOnorario();
  double Onorario1 = 0, Onorario2 = 0;
  if (lire) {
    Onorario1 = Int(P1.valore * base1 * Coefficiente / 100);
    Onorario2 = Int(base2 * P2.valore * Coefficiente) / 100;
  } else {
    uscita.Line("ONORARIO  (" + NomePeriodoTariffario(d.PeriodoCollaudo) + ")  :");
    Onorario1 = base1 * P1.valore * Coefficiente / 100;
    Onorario2 = base2 * P2.valore * Coefficiente / 100;
  }
  StampaOnorario(P1, base1, Onorario1);
  StampaOnorario(P2, base2, Onorario2);
  OnorarioBase = Onorario1 + Onorario2;
}

void NotaCoa::CalcolaMaggiorazione() {
  if (d.MaggiorazioneCollaudo <= 0) return;
  uscita.Line(Numero() + " Maggiorazione per collaudo in corso d'opera :  " +
              FormattaNumero(d.MaggiorazioneCollaudo, 2) + "%");
  const std::string base = FormattaNumero(OnorarioBase, stato.DecimaliValuta());
  Maggiorazione = IntInLire(d.MaggiorazioneCollaudo * OnorarioBase / 100);
  StampaFormula(stato, FormattaCopia(d.MaggiorazioneCollaudo / 100, 4) + " x " + base + " =",
                Maggiorazione);
}

// By time, but never more than its part of the fee without compensations. The rate of an hour is in
// Lire and stands unconverted in notes in Euro too.
void NotaCoa::CalcolaVacazione() {
  if (d.NumeroFacciate == 0) return;
  uscita.Line(Numero() + " Onorario a vacazione per revisione tecnico contabile");
  Vacazione = IntInLire(d.NumeroFacciate * kVacazioneProfessionista * kOrePerFacciata);
  std::string formula = "num. pagine " + NumberText(d.NumeroFacciate) + " x " +
                        FormattaCopia(kOrePerFacciata, -2) + " x " +
                        NumberText(kVacazioneProfessionista);
  const double massimo = DivisoCoefficiente(OnorarioBase) * kMassimoRevisioneContabile;
  if (massimo < Vacazione) {
    Vacazione = massimo;
    formula = FormattaCopia(kMassimoRevisioneContabile, -2) + " x " +
              FormattaNumero(OnorarioBase, stato.DecimaliValuta()) + " / " +
              Middle(StringaCoefficiente, 3);
  }
  StampaFormula(stato, formula + " =", Vacazione);
}

void NotaCoa::Chiudi() {
  const double Totale = Maggiorazione + OnorarioBase + Vacazione;
  const double Onorari = DivisoCoefficiente(IntInLire(Totale - Vacazione)) + Vacazione;
  ChiudiParcella(stato, Onorari, Totale - Onorari);
}

}  // namespace

void CalcoloCoa(RunState& stato) {
  DatiCoa dati;
  LeggiParcella(stato, dati);
  ApriParcella(stato, stato.FileInt,
               dati.TipoCollaudo == 1
                   ? "per le prestazioni di Collaudo amministrativo relative a :"
                   : "per le prestazioni di Certificazione di Regolare Esecuzione relative a :");
  NotaCoa nota(stato, dati);
  nota.StampaImporto();
  nota.CalcolaCompensi();
  nota.CalcolaOnorario();
  nota.CalcolaMaggiorazione();
  nota.CalcolaVacazione();
  nota.Chiudi();
}

}  // namespace orm
