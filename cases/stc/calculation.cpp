// The fee of a condition survey: stepped formulas at prices of January 1993, then the revaluation
// to the month of the service.
#include <span>

#include "cases/stc/data.h"
#include "cases/stc/stc.h"
#include "tariff/config/price_index.h"
#include "tariff/explanations.h"
#include "tariff/law/table_condition_surveys.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

// What the form calls them.
constexpr const char* kCampoSuperficie = "SUPERFICIE INTERESSATA DALL'INCARICO";
constexpr const char* kCampoPartite = "Numero delle PARTITE";
constexpr const char* kCampoMappali = "Numero dei MAPPALI";
constexpr const char* kCampoAbitazioni = "COSTRUZIONI ADIBITE AD ABITAZIONI OD UFFICI";
constexpr const char* kCampoAgricole = "COSTRUZIONI ADIBITE AD USO AGRICOLO";

// What a formula is taken on, what it comes to, and how.
struct OnorarioStc {
  Conto conto;
  std::string formula;
  std::int32_t oltre;  // where its step begins
};

OnorarioStc ApplicaFormula(std::span<const ScaglioneStc> scaglioni, double quantita, bool lire) {
  const ScaglioneStc* s = scaglioni.data();
  for (const ScaglioneStc& successivo : scaglioni)
    if (quantita > successivo.oltre) s = &successivo;
  const FormulaStc& f = lire ? s->lire : s->euro;
  if (f.unitario == 0) return {f.fisso, f.testo, s->oltre};
  const double eccedenza = quantita - s->oltre;
  return {Conto(f.fisso) + Conto(f.unitario) * eccedenza, f.testo + FormattaCopia(eccedenza, 0),
          s->oltre};
}

class NotaStc : public Parcella {
 public:
  NotaStc(Parcella parcella, const DatiStc& dati) : Parcella(std::move(parcella)), d(dati) {}

  void StampaDati();
  void CalcolaOnorario();
  void Rivaluta(const IndiciFoi& indici);

 private:
  double OnorarioPer(const char* titolo, std::span<const ScaglioneStc> formula,
                     std::int32_t quantita, const char* campo);

  const DatiStc& d;
};

void NotaStc::StampaDati() {
  const auto riga = [this](const char* etichetta, const char* unita, double quantita,
                           const char* campo) {
    if (quantita == 0) return;
    uscita.Text(etichetta).Tab(24).Text(unita);
    StampaAllineataVirgola(FormattaCopia(quantita, 0), 42);
    spiegazioni.Riga(uscita.Contents(),
                     [&]() -> Catena { return {Mostrato(PassoDato(campo, quantita), 0)}; });
  };
  uscita.Line(kRigaDatiParcella);
  riga("Superfice interessata ", "mq.  ", d.Superficie, kCampoSuperficie);
  riga("Partite interessate ", "n°  ", d.NumeroPartite, kCampoPartite);
  riga("Mappali interessati ", "n°  ", d.NumeroMappali, kCampoMappali);
  riga("Costruzioni abitative ", "mc.  ", d.VolumeAbitazioni, kCampoAbitazioni);
  riga("Costruzioni agricole ", "mq.  ", d.SuperficieAgricola, kCampoAgricole);
}

double NotaStc::OnorarioPer(const char* titolo, std::span<const ScaglioneStc> formula,
                            std::int32_t quantita, const char* campo) {
  if (quantita == 0) return 0;
  const OnorarioStc onorario = ApplicaFormula(formula, quantita, ModoLire);
  double valore = onorario.conto;
  uscita.Line(titolo).Text(onorario.formula + " ");
  // A long formula stands alone on its line, and the fee on the next one.
  spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
    if (onorario.conto.Semplice()) return {PassoDato(campo, quantita)};
    const Conto unita = Conto(quantita) - onorario.oltre;
    return {
        PassoDato(campo, quantita),
        Mostrato({"Unità oltre quelle degli scaglioni interi", unita.Testo(), unita.Valore()}, 0)};
  });
  StampaImporto(valore);
  Spiega([&]() -> Catena {
    std::string regola = "Compenso a scaglioni ai prezzi di gennaio 1993";
    if (onorario.oltre > 0)
      regola += ": quello intero fino a " + FormattaCopia(onorario.oltre, 0) +
                ", più la tariffa dello scaglione per ogni unità oltre";
    Passaggio passo = PassoImporto(std::move(regola), onorario.conto);
    if (!ModoLire)
      passo.Annota("Le cifre in Euro sono della tariffa, non la conversione delle Lire");
    return {std::move(passo)};
  });
  return valore;
}

// The surcharge touches lands alone, not the buildings.
void NotaStc::CalcolaOnorario() {
  uscita.Line(kRigaBaseGennaio1993);
  Conto Parziale = OnorarioPer("Onorario in funzione della superfice ", kFormulaSuperficie,
                               d.Superficie, kCampoSuperficie);
  Parziale += OnorarioPer("Onorario in funzione delle Partite ", kFormulaPartite, d.NumeroPartite,
                          kCampoPartite);
  Parziale += OnorarioPer("Onorario in funzione dei Mappali ", kFormulaMappali, d.NumeroMappali,
                          kCampoMappali);
  TotaleGenerale = Parziale;
  if (d.Maggiorazione != 0) {
    const Conto quota = d.Maggiorazione * Parziale;
    double M = quota;
    uscita.Text(" Maggiorazione per fronti stradali ");
    StampaImporto(M);
    Spiega([&]() -> Catena {
      return {PassoDato("Maggiorazione per fronti stradali in allargamento", d.Maggiorazione),
              PassoImporto("Maggiorazione degli onorari per superficie, partite e mappali", quota)};
    });
    TotaleGenerale = Parziale + M;
  }
  TotaleGenerale += OnorarioPer("Onorario in funzione Costruzioni abitative", kFormulaAbitazioni,
                                d.VolumeAbitazioni, kCampoAbitazioni);
  TotaleGenerale += OnorarioPer("Onorario in funzione Costruzioni agricole ", kFormulaAgricole,
                                d.SuperficieAgricola, kCampoAgricole);
}

void NotaStc::Rivaluta(const IndiciFoi& indici) {
  const Conto rivalutazione = indici.PercentualeRivalutazione(d.MesePrestazione, d.AnnoPrestazione);
  double P = rivalutazione;
  const std::string testo = FormattaNumero(P, 2);
  const Conto quota = P * TotaleGenerale / 100;
  double R = quota;
  uscita.Line(kRigaRivalutazione);
  uscita.Text("Percentuale rivalutazione da Gennnaio-1993 a")
      .Bare(d.MesePrestazione)
      .Text("-")
      .Bare(d.AnnoPrestazione)
      .Tab(kColonnaImporto)
      .Line(testo + "%");
  spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
    return {Mostrato({"Indice ISTAT dei prezzi al consumo per famiglie di operai e impiegati "
                      "(IND.CFG): del mese della prestazione su quello di gennaio 1993",
                      rivalutazione.Testo(),
                      rivalutazione.Valore(),
                      "%",
                      {},
                      {"Vale l'ultimo indice pubblicato, se quello del mese manca ancora"}},
                     2, "%")};
  });
  uscita.Text("Rivalutazione monetaria Onorario ");
  StampaImporto(R);
  Spiega([&]() -> Catena {
    return {{"Percentuale di rivalutazione, tagliata come è scritta", "", P, "%"},
            PassoImporto("Rivalutazione degli onorari", quota)};
  });
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
