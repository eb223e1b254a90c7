// The fee of a condition survey: stepped formulas at prices of January 1993, then the revaluation
// to the month of the service.
#include <algorithm>
#include <span>

#include "cases/stc/data.h"
#include "cases/stc/stc.h"
#include "runtime/explanation/steps.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/config/price_index.h"
#include "tariff/explanations.h"
#include "tariff/law/table_condition_surveys.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

// What the form calls them, and their units.
struct CampoStc {
  const char* nome;
  const char* unita;
};
constexpr CampoStc kCampoSuperficie{"SUPERFICIE INTERESSATA DALL'INCARICO", "mq"};
constexpr CampoStc kCampoPartite{"Numero delle PARTITE", ""};
constexpr CampoStc kCampoMappali{"Numero dei MAPPALI", ""};
constexpr CampoStc kCampoAbitazioni{"COSTRUZIONI ADIBITE AD ABITAZIONI OD UFFICI", "mc"};
constexpr CampoStc kCampoAgricole{"COSTRUZIONI ADIBITE AD USO AGRICOLO", "mq"};

// What a formula is taken on, what it comes to, and how.
struct OnorarioStc {
  Conto conto;
  std::string formula;
  std::int32_t oltre = 0;   // where its step begins
  std::string interi = "";  // the terms of the steps before
};

OnorarioStc ApplicaFormula(std::span<const ScaglioneStc> scaglioni, double quantita, bool lire) {
  const ScaglioneStc* s = scaglioni.data();
  for (const ScaglioneStc& successivo : scaglioni)
    if (quantita > successivo.oltre) s = &successivo;
  const FormulaStc& f = lire ? s->lire : s->euro;
  if (f.unitario == 0) return {f.fisso, f.testo, s->oltre};
  const double eccedenza = quantita - s->oltre;
  const std::string testo = f.testo;
  return {Conto(f.fisso) + Conto(f.unitario) * eccedenza, testo + FormattaCopia(eccedenza, 0),
          s->oltre, TrimRight(testo.substr(0, std::min(testo.rfind('+'), testo.size())))};
}

class NotaStc : public Parcella {
 public:
  NotaStc(Parcella parcella, const DatiStc& dati) : Parcella(std::move(parcella)), d(dati) {}

  void StampaDati();
  void CalcolaOnorario();
  void Rivaluta(const IndiciFoi& indici);

 private:
  double OnorarioPer(const char* titolo, std::span<const ScaglioneStc> formula,
                     std::int32_t quantita, const CampoStc& campo);

  const DatiStc& d;
};

void NotaStc::StampaDati() {
  const auto riga = [this](const char* etichetta, const char* unita, double quantita,
                           const CampoStc& campo) {
    if (quantita == 0) return;
    uscita.Text(etichetta).Tab(24).Text(unita);
    StampaAllineataVirgola(FormattaCopia(quantita, 0), 42);
    spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
      return {Mostrato(PassoDato(campo.nome, quantita, campo.unita), 0)};
    });
  };
  uscita.Line(kRigaDatiParcella);
  riga("Superfice interessata ", "mq.  ", d.Superficie, kCampoSuperficie);
  riga("Partite interessate ", "n°  ", d.NumeroPartite, kCampoPartite);
  riga("Mappali interessati ", "n°  ", d.NumeroMappali, kCampoMappali);
  riga("Costruzioni abitative ", "mc.  ", d.VolumeAbitazioni, kCampoAbitazioni);
  riga("Costruzioni agricole ", "mq.  ", d.SuperficieAgricola, kCampoAgricole);
}

double NotaStc::OnorarioPer(const char* titolo, std::span<const ScaglioneStc> formula,
                            std::int32_t quantita, const CampoStc& campo) {
  if (quantita == 0) return 0;
  const OnorarioStc onorario = ApplicaFormula(formula, quantita, ModoLire);
  double valore = onorario.conto;
  uscita.Line(titolo).Text(onorario.formula + " ");
  const std::int32_t oltre = onorario.oltre;
  // A long formula stands alone on its line, and the fee on the next one.
  spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
    Passaggio dato = PassoDato(campo.nome, quantita, campo.unita);
    if (onorario.conto.Semplice()) return {std::move(dato)};
    if (oltre == 0) return {Mostrato(std::move(dato), 0)};
    const Conto parte = Conto(quantita) - oltre;
    return {std::move(dato),
            Mostrato({"Parte oltre gli scaglioni interi", parte, parte.Valore(), campo.unita}, 0)};
  });
  StampaImporto(valore);
  Spiega([&]() -> Catena {
    std::string regola = "Compenso ai prezzi di gennaio 1993";
    if (oltre > 0)
      regola += ": quello degli scaglioni interi fino a " + FormattaCopia(oltre, 0) + " (" +
                onorario.interi + "), più la tariffa dello scaglione per la parte oltre";
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
              PassoImporto("Maggiorazione sugli onorari per superficie, partite e mappali", quota)};
    });
    TotaleGenerale = Parziale + M;
  }
  TotaleGenerale += OnorarioPer("Onorario in funzione Costruzioni abitative", kFormulaAbitazioni,
                                d.VolumeAbitazioni, kCampoAbitazioni);
  TotaleGenerale += OnorarioPer("Onorario in funzione Costruzioni agricole ", kFormulaAgricole,
                                d.SuperficieAgricola, kCampoAgricole);
}

void NotaStc::Rivaluta(const IndiciFoi& indici) {
  LetturaIndici lettura;
  const Conto rivalutazione =
      indici.PercentualeRivalutazione(d.MesePrestazione, d.AnnoPrestazione, &lettura);
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
    const std::string mese = NumberText(lettura.mese) + "-" + NumberText(lettura.anno);
    Passaggio passo{
        "Indice ISTAT dei prezzi al consumo per famiglie di operai e impiegati, dalla " +
            TabellaPersonale(kFileIndici, lettura.nota) + ": quello del " + mese +
            " su quello di gennaio 1993",
        rivalutazione, rivalutazione.Valore(), "%"};
    if (lettura.mese != d.MesePrestazione || lettura.anno != d.AnnoPrestazione)
      passo.Annota("L'indice del mese della prestazione manca ancora, e vale l'ultimo pubblicato");
    return {Mostrato(std::move(passo), 2, "%")};
  });
  uscita.Text("Rivalutazione monetaria Onorario ");
  StampaImporto(R);
  Spiega([&]() -> Catena {
    return {{"Percentuale di rivalutazione scritta sopra", "", P, "%"},
            PassoImporto("Rivalutazione in percento degli onorari", quota)};
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
