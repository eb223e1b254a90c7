// The fee of a condition survey: stepped formulas at prices of January 1993, then the revaluation
// to the month of the service.
#include <span>

#include "cases/stc/data.h"
#include "cases/stc/stc.h"
#include "tariff/config/price_index.h"
#include "tariff/law/table_condition_surveys.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

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

class NotaStc : public Parcella {
 public:
  NotaStc(Parcella parcella, const DatiStc& dati) : Parcella(std::move(parcella)), d(dati) {}

  void StampaDati();
  void CalcolaOnorario();
  void Rivaluta(const IndiciFoi& indici);

 private:
  double OnorarioPer(const char* titolo, std::span<const ScaglioneStc> formula,
                     std::int32_t quantita);

  const DatiStc& d;
};

void NotaStc::StampaDati() {
  const auto riga = [this](const char* etichetta, const char* unita, double quantita) {
    if (quantita == 0) return;
    uscita.Text(etichetta).Tab(24).Text(unita);
    StampaAllineataVirgola(FormattaCopia(quantita, 0), 42);
  };
  uscita.Line(kRigaDatiParcella);
  riga("Superfice interessata ", "mq.  ", d.Superficie);
  riga("Partite interessate ", "n°  ", d.NumeroPartite);
  riga("Mappali interessati ", "n°  ", d.NumeroMappali);
  riga("Costruzioni abitative ", "mc.  ", d.VolumeAbitazioni);
  riga("Costruzioni agricole ", "mq.  ", d.SuperficieAgricola);
}

double NotaStc::OnorarioPer(const char* titolo, std::span<const ScaglioneStc> formula,
                            std::int32_t quantita) {
  if (quantita == 0) return 0;
  OnorarioStc onorario = ApplicaFormula(formula, quantita, ModoLire);
  uscita.Line(titolo).Text(onorario.formula + " ");
  StampaImporto(onorario.valore);
  return onorario.valore;
}

// The surcharge touches lands alone, not the buildings.
void NotaStc::CalcolaOnorario() {
  uscita.Line(kRigaBaseGennaio1993);
  double Parziale =
      OnorarioPer("Onorario in funzione della superfice ", kFormulaSuperficie, d.Superficie);
  Parziale += OnorarioPer("Onorario in funzione delle Partite ", kFormulaPartite, d.NumeroPartite);
  Parziale += OnorarioPer("Onorario in funzione dei Mappali ", kFormulaMappali, d.NumeroMappali);
  TotaleGenerale = Parziale;
  if (d.Maggiorazione != 0) {
    double M = d.Maggiorazione * Parziale;
    uscita.Text(" Maggiorazione per fronti stradali ");
    StampaImporto(M);
    TotaleGenerale = Parziale + M;
  }
  TotaleGenerale += OnorarioPer("Onorario in funzione Costruzioni abitative", kFormulaAbitazioni,
                                d.VolumeAbitazioni);
  TotaleGenerale += OnorarioPer("Onorario in funzione Costruzioni agricole ", kFormulaAgricole,
                                d.SuperficieAgricola);
}

void NotaStc::Rivaluta(const IndiciFoi& indici) {
  double P = indici.PercentualeRivalutazione(d.MesePrestazione, d.AnnoPrestazione);
  const std::string testo = FormattaNumero(P, 2);
  double R = P * TotaleGenerale / 100;
  uscita.Line(kRigaRivalutazione);
  uscita.Text("Percentuale rivalutazione da Gennnaio-1993 a")
      .Bare(d.MesePrestazione)
      .Text("-")
      .Bare(d.AnnoPrestazione)
      .Tab(kColonnaImporto)
      .Line(testo + "%");
  uscita.Text("Rivalutazione monetaria Onorario ");
  StampaImporto(R);
  TotaleGenerale += R;
}

}  // namespace

Parcella CalcoloStc(Parcella parcella, const DatiStc& dati, const IndiciFoi& indici) {
  NotaStc nota(std::move(parcella), dati);
  nota.ApriParcella(
      "per le prestazioni di accertamento/verifica stati di consistenza relative a :");
  nota.StampaDati();
  nota.CalcolaOnorario();
  nota.Rivaluta(indici);
  nota.ChiudiParcella(nota.TotaleGenerale, 0);
  return nota;
}

}  // namespace orm
