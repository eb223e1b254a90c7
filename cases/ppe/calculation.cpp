#include "cases/ppe/data.h"
#include "cases/ppe/ppe.h"
#include "runtime/numbers.h"
#include "tariff/files/closing_line.h"
#include "tariff/final_account.h"
#include "tariff/law/table_expropriation.h"
#include "tariff/money.h"
#include "tariff/report.h"

namespace orm {
namespace {

double Tariffa(const TariffaPpe& tariffa, bool modoLire) {
  if (modoLire) return tariffa.lire;
  return tariffa.euro != 0 ? tariffa.euro : LireInEuro(tariffa.lire);
}

const char* Testo(const TariffaPpe& tariffa, bool modoLire) {
  return modoLire ? tariffa.testoLire : tariffa.testoEuro;
}

// In Lire a product is one of 32-bit whole numbers, and a greater one a failure; the sums are not.
double Prodotto(std::int16_t numero, const TariffaPpe& tariffa, bool modoLire) {
  if (modoLire) return CheckedProduct32(numero, tariffa.lire);
  return numero * Tariffa(tariffa, modoLire);
}

// A number behind a text keeps the blank of its sign place: " n°  5", " + 1".
std::string ConSegno(std::int16_t numero) { return (numero < 0 ? "" : " ") + NumberText(numero); }

void StampaDati(ReportPrinter& uscita, const DatiPpe& dati) {
  const auto riga = [&uscita](const char* etichetta, std::int16_t numero) {
    if (numero != 0) uscita.Text(etichetta).Bare(numero).EndLine();
  };
  uscita.Line(kRigaDatiParcella);
  riga("Numero Partite catastali    : ", dati.NumPartite);
  riga("Numero Particelle catastali : ", dati.NumParticelle);
  if (dati.NumParticelleVerbale + dati.NumFabbricati != 0) {
    uscita.Line("Redazione verbale di consistenza");
    riga("relativo a Numero Particelle catastali : ", dati.NumParticelleVerbale);
    riga("relativo a Numero Fabbricati           : ", dati.NumFabbricati);
  }
  riga("Numero Frazionamenti : ", dati.NumFrazionamenti);
}

// The fee of a block: its text, how it comes about, and the amount, cut as printed and then summed.
void StampaOnorario(RunState& stato, const char* titolo, const std::string& formula, double importo,
                    double& totale) {
  const std::string testo = FormattaNumero(importo, stato.DecimaliValuta());
  stato.NumFileUscita.Line(titolo)
      .Text(formula + " ")
      .Tab(kColonnaImporto)
      .Line(StringaImporto(testo, TipoImporto::Onorari, stato.ModoLire));
  totale += importo;
}

void StampaQuantita(RunState& stato, const char* titolo, std::int16_t numero,
                    const TariffaPpe& tariffa, double& totale) {
  if (numero == 0) return;
  StampaOnorario(stato, titolo, " n° " + ConSegno(numero) + Testo(tariffa, stato.ModoLire),
                 Prodotto(numero, tariffa, stato.ModoLire), totale);
}

void StampaVerbale(RunState& stato, const DatiPpe& dati, double& totale) {
  if (dati.NumParticelleVerbale + dati.NumFabbricati == 0) return;
  const bool lire = stato.ModoLire;
  std::string formula = Testo(kTariffaVerbale, lire);
  if (dati.NumParticelleVerbale != 0)
    formula += " +" + ConSegno(dati.NumParticelleVerbale) + Testo(kTariffaParticellaVerbale, lire);
  if (dati.NumFabbricati != 0)
    formula += " +" + ConSegno(dati.NumFabbricati) + Testo(kTariffaFabbricato, lire);
  const double importo = Tariffa(kTariffaVerbale, lire) +
                         Prodotto(dati.NumParticelleVerbale, kTariffaParticellaVerbale, lire) +
                         Prodotto(dati.NumFabbricati, kTariffaFabbricato, lire);
  StampaOnorario(stato, "Onorario per verbale di consistenza ", formula, importo, totale);
}

}  // namespace

void CalcoloPpe(RunState& stato, double& totale) {
  DatiPpe dati;
  LeggiParcella(stato, dati);
  ApriParcella(stato, stato.FileInt,
               "per le prestazioni di redazione di piani particellari di esproprio relative a :");
  StampaDati(stato.NumFileUscita, dati);

  stato.NumFileUscita.Line(kRigaOnorariCompensi);
  totale = 0;
  StampaQuantita(stato, "Onorario in funzione delle Partite ", dati.NumPartite, kTariffaPartita,
                 totale);
  StampaQuantita(stato, "Onorario in funzione delle Particelle ", dati.NumParticelle,
                 kTariffaParticella, totale);
  StampaVerbale(stato, dati, totale);
  StampaQuantita(stato, "Onorario in funzione dei frazionamenti ", dati.NumFrazionamenti,
                 kTariffaFrazionamento, totale);

  ChiudiParcella(stato, totale, 0);
}

}  // namespace orm
