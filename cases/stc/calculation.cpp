// The fee of a condition survey: stepped formulas at prices of January 1993, then the revaluation
// to the month of the service.
#include <span>

#include "cases/stc/data.h"
#include "cases/stc/stc.h"
#include "runtime/numbers.h"
#include "tariff/files/closing_line.h"
#include "tariff/final_account.h"
#include "tariff/law/table_condition_surveys.h"
#include "tariff/money.h"
#include "tariff/price_index.h"
#include "tariff/report.h"

namespace orm {
namespace {

// What a formula is taken on, what it comes to, and how.
struct OnorarioStc {
  double valore;
  std::string formula;
};

OnorarioStc ApplicaFormula(std::span<const ScaglioneStc> scaglioni, double quantita, bool lire) {
  const ScaglioneStc* s = scaglioni.data();
  for (const ScaglioneStc& successivo : scaglioni)
    if (quantita > successivo.oltre) s = &successivo;
  const FormulaStc& f = lire ? s->lire : s->euro;
  if (f.unitario == 0) return {f.fisso, f.testo};
  const double eccedenza = quantita - s->oltre;
  return {f.fisso + f.unitario * eccedenza, f.testo + FormattaCopia(eccedenza, 0)};
}

class NotaStc {
 public:
  NotaStc(RunState& run, const DatiStc& dati) : stato(run), uscita(run.NumFileUscita), d(dati) {}

  void StampaDati();
  void CalcolaOnorario();
  void Rivaluta();
  void Chiudi() { ChiudiParcella(stato, Onorario, 0); }

 private:
  void StampaImporto(const std::string& testo, double& importo);
  double OnorarioPer(const char* titolo, std::span<const ScaglioneStc> formula,
                     std::int32_t quantita);

  RunState& stato;
  ReportPrinter& uscita;
  const DatiStc& d;
  double Onorario = 0;
};

void NotaStc::StampaDati() {
  const auto riga = [this](const char* etichetta, const char* unita, double quantita) {
    if (quantita == 0) return;
    uscita.Text(etichetta).Tab(24).Text(unita);
    StampaAllineataVirgola(stato, FormattaCopia(quantita, 0), 42);
  };
  uscita.Line(kRigaDatiParcella);
  riga("Superfice interessata ", "mq.  ", d.Superficie);
  riga("Partite interessate ", "n°  ", d.NumeroPartite);
  riga("Mappali interessati ", "n°  ", d.NumeroMappali);
  riga("Costruzioni abitative ", "mc.  ", d.VolumeAbitazioni);
  riga("Costruzioni agricole ", "mq.  ", d.SuperficieAgricola);
}

// One line; the amount is cut as printed.
void NotaStc::StampaImporto(const std::string& testo, double& importo) {
  const std::string cifre = FormattaNumero(importo, stato.DecimaliValuta());
  uscita.Text(testo)
      .Tab(kColonnaImporto)
      .Line(StringaImporto(cifre, TipoImporto::Onorari, stato.ModoLire));
}

double NotaStc::OnorarioPer(const char* titolo, std::span<const ScaglioneStc> formula,
                            std::int32_t quantita) {
  if (quantita == 0) return 0;
  OnorarioStc onorario = ApplicaFormula(formula, quantita, stato.ModoLire);
  uscita.Line(titolo);
  StampaImporto(onorario.formula + " ", onorario.valore);
  return onorario.valore;
}

// The surcharge touches lands alone, not the buildings.
void NotaStc::CalcolaOnorario() {
  uscita.Line(kRigaBaseGennaio1993);
  double Parziale =
      OnorarioPer("Onorario in funzione della superfice ", kFormulaSuperficie, d.Superficie);
  Parziale += OnorarioPer("Onorario in funzione delle Partite ", kFormulaPartite, d.NumeroPartite);
  Parziale += OnorarioPer("Onorario in funzione dei Mappali ", kFormulaMappali, d.NumeroMappali);
  Onorario = Parziale;
  if (d.Maggiorazione != 0) {
    double M = d.Maggiorazione * Parziale;
    StampaImporto(" Maggiorazione per fronti stradali ", M);
    Onorario = Parziale + M;
  }
  Onorario += OnorarioPer("Onorario in funzione Costruzioni abitative", kFormulaAbitazioni,
                          d.VolumeAbitazioni);
  Onorario += OnorarioPer("Onorario in funzione Costruzioni agricole ", kFormulaAgricole,
                          d.SuperficieAgricola);
}

void NotaStc::Rivaluta() {
  double P = PercentualeRivalutazione(stato.folder, d.MesePrestazione, d.AnnoPrestazione);
  const std::string testo = FormattaNumero(P, 2);
  double R = P * Onorario / 100;
  uscita.Line(kRigaRivalutazione);
  uscita.Text("Percentuale rivalutazione da Gennnaio-1993 a")
      .Bare(d.MesePrestazione)
      .Text("-")
      .Bare(d.AnnoPrestazione)
      .Tab(kColonnaImporto)
      .Line(testo + "%");
  StampaImporto("Rivalutazione monetaria Onorario ", R);
  Onorario += R;
}

}  // namespace

void CalcoloStc(RunState& stato) {
  DatiStc dati;
  LeggiParcella(stato, dati);
  ApriParcella(stato, stato.FileInt,
               "per le prestazioni di accertamento/verifica stati di consistenza relative a :");
  NotaStc nota(stato, dati);
  nota.StampaDati();
  nota.CalcolaOnorario();
  nota.Rivaluta();
  nota.Chiudi();
}

}  // namespace orm
