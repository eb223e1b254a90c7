// The fee of testing: Table C on the amount of the works, in two tiers beyond 5,000 million Lire,
// a surcharge for testing during the works, and a fee by time for the revision of the accounts.
#include "cases/coa/coa.h"
#include "cases/coa/data.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/explanations.h"
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
  void StampaTabellaC(const Percentuale& P, Passaggio su, const Conto& importo, const char* nota);
  void StampaTitoloOnorario();
  double StampaScaglione(const Percentuale& P, double base, const Conto& prodotto, bool intero);
  Catena CatenaScaglione(const Percentuale& P, const Conto& prodotto, bool intero) const;
  std::string TagliaBase();

  DatiCoa d;
  const double lire;  // the amount of the works
  Conto OnorarioBase;
  double Maggiorazione = 0, Vacazione = 0;
};

void NotaCoa::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  StampaLavori(1, "IMPORTO TOTALE LAVORI   :", d.ImportoCollaudo, "IMPORTO DEI LAVORI COLLAUDATI");
  Coefficiente = 0;  // unless the criterion finds one
  CompensiSuLavori(d.ImportoCollaudo, "Importo dei lavori collaudati");
}

// `su`: the amount behind the percentage, which the line shows in Lire where a note says why.
void NotaCoa::StampaTabellaC(const Percentuale& P, Passaggio su, const Conto& importo,
                             const char* nota) {
  const std::string cifre = P.testo.substr(0, P.testo.find('%'));
  const bool inLire = !ModoLire && nota != nullptr;
  uscita.Line("Percentuale ( da Tabella C ) = " + cifre + "  su " +
              TestoImporto(inLire ? ImportoInLire(importo) : importo.Valore()));
  spiegazioni.Riga(uscita.Contents(), [&] {
    Catena catena{std::move(su)};
    if (inLire) catena = Unite(std::move(catena), CatenaInLire(importo));
    catena.back() = Mostrato(std::move(catena.back()), DecimaliValuta());
    if (inLire) catena.back().Annota(nota);
    catena = Unite(std::move(catena), P.catena);
    catena.back().cifra = cifre;
    return catena;
  });
}

void NotaCoa::StampaTitoloOnorario() {
  uscita.Line(kRigaOnorariCompensi);
  uscita.Line(Numero() + " ONORARIO  (" + NomePeriodoTariffario(d.PeriodoCollaudo) + ") ");
}

// `intero`: the cut comes before the division by 100.
double NotaCoa::StampaScaglione(const Percentuale& P, double base, const Conto& prodotto,
                                bool intero) {
  double onorario = intero ? Int(prodotto) / 100 : IntInLire(prodotto / 100);
  StampaRigaOnorario(1, P.testo + " x " + TestoImporto(base) + StringaCoefficiente + " ", onorario);
  Spiega([&] { return CatenaScaglione(P, prodotto, intero); });
  return onorario;
}

Catena NotaCoa::CatenaScaglione(const Percentuale& P, const Conto& prodotto, bool intero) const {
  constexpr const char* kOnorario =
      "Onorario di collaudo, Tabella C: importo e percentuale, per il coefficiente dei compensi";
  if (!intero) return CatenaOnorario(P, prodotto / 100, {kOnorario});
  Catena catena = CatenaOnorario(P, prodotto, {kOnorario});
  catena.back().tagli = {{TipoTaglio::ParteIntera, 0, prodotto.Valore(), Int(prodotto)}};
  catena.push_back(PassoImporto("Onorario: il centesimo del prodotto", Conto(Int(prodotto)) / 100));
  catena.back().Annota(
      "Qui la parte intera si prende prima di dividere per 100, in Euro come in Lire");
  return catena;
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
  StampaTabellaC(P, PassoImporto("Importo su cui si prende la percentuale", d.ImportoCollaudo),
                 d.ImportoCollaudo, nullptr);
  StampaTitoloOnorario();
  OnorarioBase = StampaScaglione(P, d.ImportoCollaudo,
                                 Conto(d.ImportoCollaudo) * P.valore * Coefficiente, true);
}

// Both figures behind the percentages are in Lire in a note in Euro as well, the limit even
// multiplied by the exchange rate a second time. The two fees in Lire are cut at different places.
void NotaCoa::DueScaglioni() {
  const double base1 = InValuta(kLimiteTabellaA);
  const Conto base2 = Conto(d.ImportoCollaudo) - base1;
  const Percentuale P1 = PercentualeDaTabellaC(d.PeriodoCollaudo, kLimiteTabellaA);
  const Percentuale P2 = PercentualeDaTabellaC(d.PeriodoCollaudo, lire);
  StampaTabellaC(P1, {"Limite oltre il quale l'importo si divide", "", kLimiteTabellaA, "Lire"},
                 kLimiteTabellaA,
                 "La riga moltiplica per il cambio il limite, che è già in Lire; l'onorario si "
                 "calcola sul limite giusto");
  StampaTabellaC(P2, PassoImporto("Parte dell'importo oltre il limite", base2), base2,
                 "La riga mostra questa parte in Lire; l'onorario si calcola su quella in Euro");
  StampaTitoloOnorario();
  if (!ModoLire) uscita.Line("ONORARIO  (" + NomePeriodoTariffario(d.PeriodoCollaudo) + ")  :");
  OnorarioBase = StampaScaglione(P1, base1, Conto(P1.valore) * base1 * Coefficiente, false);
  OnorarioBase += StampaScaglione(P2, base2, base2 * P2.valore * Coefficiente, ModoLire);
}

// The text of the fee, which stays as it is printed.
std::string NotaCoa::TagliaBase() {
  double base = OnorarioBase;
  std::string testo = FormattaNumero(base, DecimaliValuta());
  if (base != OnorarioBase.Valore()) OnorarioBase = base;
  return testo;
}

void NotaCoa::CalcolaMaggiorazione() {
  if (d.MaggiorazioneCollaudo <= 0) return;
  const double percento = d.MaggiorazioneCollaudo;
  uscita.Line(Numero() + " Maggiorazione per collaudo in corso d'opera :  " +
              FormattaNumero(d.MaggiorazioneCollaudo, 2) + "%");
  const std::string base = TagliaBase();
  const Conto conto = d.MaggiorazioneCollaudo * OnorarioBase / 100;
  Maggiorazione = IntInLire(conto);
  StampaFormula(FormattaCopia(d.MaggiorazioneCollaudo / 100, 4) + " x " + base + " =",
                Maggiorazione);
  Spiega([&]() -> Catena {
    Passaggio dato = PassoDato("MAGGIORAZIONE PER COLLAUDO IN CORSO D'OPERA", percento);
    dato.unita = "%";
    dato.tagli = {{TipoTaglio::Decimali, 2, percento, d.MaggiorazioneCollaudo}};
    return {std::move(dato), PassoOnorario("Maggiorazione in percento dell'onorario", conto)};
  });
}

// By time, but never more than its part of the fee without compensations. The rate of an hour is in
// Lire and stands unconverted in notes in Euro too.
void NotaCoa::CalcolaVacazione() {
  if (d.NumeroFacciate == 0) return;
  uscita.Line(Numero() + " Onorario a vacazione per revisione tecnico contabile");
  const Conto ore = Conto(d.NumeroFacciate) * kVacazioneProfessionista * kOrePerFacciata;
  Vacazione = IntInLire(ore);
  std::string formula = "num. pagine " + NumberText(d.NumeroFacciate) + " x " +
                        TestoQuota(kOrePerFacciata) + NumberText(kVacazioneProfessionista);
  const Conto massimo =
      (Coefficiente == 0 ? Conto(0) : OnorarioBase / Coefficiente) * kMassimoRevisioneContabile;
  const bool ridotta = massimo < Vacazione;
  if (ridotta) {
    Vacazione = massimo;
    formula = TestoQuota(kMassimoRevisioneContabile) + TagliaBase() + " / " +
              Middle(StringaCoefficiente, 3);
  }
  StampaFormula(formula + " =", Vacazione);
  Spiega([&]() -> Catena {
    Passaggio passo = PassoOnorario(
        "Revisione tecnico contabile: facciate per la vacazione di un'ora (art. 4 L. 143/1949, "
        "D.M. 3-9-1997 n. 417) e per 0,25 ore a facciata",
        ore);
    if (!ModoLire) passo.Annota("La vacazione è in Lire e qui non è convertita in Euro");
    Catena catena{
        PassoDato("NUMERO FACCIATE DEI DOCUMENTI CONTABILI REVISIONATI", d.NumeroFacciate),
        std::move(passo)};
    if (ridotta)
      catena.push_back(PassoImporto(
          "Si prende il massimo, che è minore: 0,40 dell'onorario di collaudo senza i compensi "
          "accessori",
          massimo));
    return catena;
  });
}

void NotaCoa::Chiudi() {
  TotaleGenerale = Conto(Maggiorazione) + OnorarioBase + Vacazione;
  const Conto conCompensi = TotaleGenerale - Vacazione;
  const double intero = IntInLire(conCompensi);
  const Conto Onorari = (Coefficiente == 0 ? Conto(0) : Conto(intero) / Coefficiente) + Vacazione;
  Catena prima;
  if (spiegazioni.Attive())
    prima = Unite(CatenaCompensi,
                  {PassoOnorario(Vacazione == 0 ? "Somma degli onorari, che contengono i compensi"
                                                : "Somma degli onorari che contengono i compensi, "
                                                  "e quindi senza la vacazione",
                                 conCompensi)});
  ChiudiParcella(Onorari, TotaleGenerale - Onorari, prima);
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
