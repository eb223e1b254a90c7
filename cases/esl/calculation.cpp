// The fee of public works under D.M. 4-4-2001, lot by lot and phase by phase.
#include <algorithm>
#include <cmath>
#include <span>

#include "cases/esl/data.h"
#include "cases/esl/esl.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/accounting_block.h"
#include "tariff/files/closing_line.h"
#include "tariff/final_account.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/table_services_2001.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/lot_lines.h"
#include "tariff/money.h"
#include "tariff/report.h"

namespace orm {
namespace {

// Of accounting and certificate, which the decree of 2001 left alone.
constexpr int kPeriodo = kPeriodo1987;

std::size_t ColonnaTabelleB(std::string_view classe, std::string_view categoria) {
  if (const auto colonna = ColonnaTabelle2001(classe, categoria)) return *colonna;
  throw RuntimeFailure("La classe \"" + std::string(classe) + "\", categoria \"" +
                       std::string(categoria) + "\" non è nelle tabelle.");
}

std::string_view NomeFase(FaseEsl fase) {
  switch (fase) {
    case FaseEsl::Preliminare:
      return "PROGETTO PRELIMINARE";
    case FaseEsl::Definitivo:
      return "PROGETTO DEFINITIVO";
    case FaseEsl::Esecutivo:
      return "PROGETTO ESECUTIVO";
    default:
      return "DIREZIONE LAVORI";
  }
}

// A code counts wherever it stands in the string, small or capital: the choice of l1 is one of l
// too.
bool Contiene(std::string_view prestazioni, std::string_view codice) {
  return Capitals(prestazioni).find(Capitals(codice)) != std::string::npos;
}

// The services of one table that a lot takes in one phase.
struct GruppoServizi {
  double aliquota = 0;
  std::string testo;  // "a+b"
};

GruppoServizi ServiziDi(std::span<const ServizioEsl> tabella, FaseEsl fase, std::size_t colonna,
                        const std::string& prestazioni, int NumeroAddetti) {
  GruppoServizi gruppo;
  for (const ServizioEsl& servizio : tabella) {
    if (servizio.fase != fase) continue;
    const double volte = servizio.codice == "l4" ? NumeroAddetti : 1;
    if (Contiene(prestazioni, servizio.scelta))
      gruppo.aliquota += servizio.aliquote[colonna] * volte;
    if (Contiene(prestazioni, servizio.codice))
      gruppo.testo += (gruppo.testo.empty() ? "" : "+") + std::string(servizio.codice);
  }
  return gruppo;
}

class NotaEsl {
 public:
  NotaEsl(RunState& run, const DatiEsl& dati) : stato(run), uscita(run.NumFileUscita), d(dati) {}

  void StampaSpecifica();
  void CalcolaCompensi();
  void CalcolaLotti();
  void CalcolaContabilita();
  void CalcolaCertificato();
  void StampaRiepilogo();
  double Totale() const { return TotaleGenerale; }
  void Chiudi() { ChiudiConCompensi(stato, TotaleGenerale, compensi); }

 private:
  // What one side of a lot, design or supervision, is reckoned on.
  struct Lavori {
    const LottoEsl& lotto;
    double importo;
    Percentuale percentuale;
  };
  double BaseDirezione(const LottoEsl& lotto) const;
  void StampaImporti(std::size_t numero, const LottoEsl& lotto);
  double OnorarioFase(FaseEsl fase, const Lavori& lavori);
  double OnorarioProgetto(const Lavori& lavori);
  double OnorarioDirezione(const Lavori& lavori);

  RunState& stato;
  ReportPrinter& uscita;
  const DatiEsl& d;
  Compensi compensi;
  double SommaDirezione = 0;
  std::vector<RigaContabilita> contemp;
  double TotaleProgetto = 0, TotaleDirezione = 0, TotaleContabilita = 0, TotaleCertificato = 0;
  double TotaleGenerale = 0;
};

void NotaEsl::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  for (std::size_t i = 0; i < d.Lotti.size(); ++i) {
    const LottoEsl& lotto = d.Lotti[i];
    const double progetto = lotto.ImportoProgettazione, direzione = lotto.ImportoDirezioneLavori;
    if (progetto != 0 || direzione != 0)
      uscita.Line(TitoloLotto(i + 1, lotto.Classe, lotto.Categoria));
    StampaProgettoSpecifica(stato, 5, progetto);
    if (direzione > kDirezioneMinimaStampata)
      StampaLavori(stato, 5, VoceDirezioneSpecifica(d.TipoParcella), direzione);
  }
}

// In a note in progress supervision takes its percentage from the design, also where there is none.
double NotaEsl::BaseDirezione(const LottoEsl& lotto) const {
  return std::fabs(d.TipoParcella == "NORMALE" ? lotto.ImportoProgettazione
                                               : lotto.ImportoDirezioneLavori);
}

void NotaEsl::CalcolaCompensi() {
  double SommaProgetto = 0;
  for (const LottoEsl& lotto : d.Lotti) {
    SommaProgetto += std::fabs(lotto.ImportoProgettazione);
    if (lotto.ImportoDirezioneLavori > kDirezioneMinimaSommata)
      SommaDirezione += lotto.ImportoDirezioneLavori;
  }
  compensi = StampaCompensiAccessori(stato, std::max(SommaProgetto, SommaDirezione));
}

void NotaEsl::StampaImporti(std::size_t numero, const LottoEsl& lotto) {
  if (lotto.ImportoProgettazione > 0 || lotto.ImportoDirezioneLavori > 0)
    uscita.Text(TitoloLotto(numero, lotto.Classe, lotto.Categoria))
        .Tab(32)
        .Line("Decreto 4-4-2001");
  if (lotto.ImportoProgettazione > 3)
    StampaLavori(stato, 3, " - Lavori di progetto", lotto.ImportoProgettazione);
  if (lotto.ImportoDirezioneLavori > kDirezioneMinimaStampata)
    StampaLavori(stato, 3, VoceDirezioneOnorari(d.TipoParcella), lotto.ImportoDirezioneLavori);
}

void NotaEsl::CalcolaLotti() {
  uscita.Line(kRigaOnorariCompensi);
  for (std::size_t i = 0; i < d.Lotti.size(); ++i) {
    const LottoEsl& lotto = d.Lotti[i];
    const double BaseProgetto = std::fabs(lotto.ImportoProgettazione);
    const auto percentuale = [&](double base) {
      return PercentualeDaTabellaNuova(stato, base, lotto.Classe, lotto.Categoria);
    };
    const Lavori progetto{lotto, lotto.ImportoProgettazione, percentuale(BaseProgetto)};
    const Lavori direzione{lotto, lotto.ImportoDirezioneLavori, percentuale(BaseDirezione(lotto))};

    StampaImporti(i + 1, lotto);
    if (progetto.importo > 0)
      StampaPercentuale(stato, kVocePercentualeProgetto, progetto.percentuale, BaseProgetto);
    if (direzione.importo > 0)
      StampaPercentuale(stato, kVocePercentualeDirezione, direzione.percentuale,
                        BaseDirezione(lotto));
    const double onorarioProgetto = OnorarioProgetto(progetto);
    const double onorarioDirezione = OnorarioDirezione(direzione);
    TotaleProgetto += onorarioProgetto;
    TotaleDirezione += onorarioDirezione;
    if (lotto.MisureContabilita != "NO")
      contemp.push_back({kPeriodo, lotto.CoefficienteContabilita, lotto.ImportoDirezioneLavori});
    TotaleGenerale += onorarioProgetto + onorarioDirezione;
  }
}

double NotaEsl::OnorarioProgetto(const Lavori& lavori) {
  if (lavori.importo <= 0) return 0;
  double onorario = 0;
  for (const FaseEsl fase : {FaseEsl::Preliminare, FaseEsl::Definitivo, FaseEsl::Esecutivo})
    onorario += OnorarioFase(fase, lavori);
  return onorario;
}

double NotaEsl::OnorarioDirezione(const Lavori& lavori) {
  return lavori.importo < 3 ? 0 : OnorarioFase(FaseEsl::Direzione, lavori);
}

// The base services, then the integrative ones. The name of the phase stands once above them; a
// group of share 0 prints nothing.
double NotaEsl::OnorarioFase(FaseEsl fase, const Lavori& lavori) {
  const LottoEsl& lotto = lavori.lotto;
  double totale = 0;
  bool titolo = false;
  const auto gruppo = [&](std::string_view voce, std::span<const ServizioEsl> tabella,
                          const std::string& prestazioni, int decimali,
                          const std::string& addetti) {
    const auto servizi = ServiziDi(tabella, fase, ColonnaTabelleB(lotto.Classe, lotto.Categoria),
                                   prestazioni, lotto.NumeroAddetti);
    if (servizi.aliquota == 0) return;
    if (!titolo) uscita.Line(NomeFase(fase));
    titolo = true;
    uscita.Text(voce).Text(servizi.testo).Line(addetti);
    const double onorario =
        lavori.importo * lavori.percentuale.valore * servizi.aliquota / 100 * compensi.Coefficiente;
    totale += StampaOnorario(stato,
                             {.aliquota = servizi.aliquota,
                              .decimali = decimali,
                              .percentuale = lavori.percentuale,
                              .importo = lavori.importo,
                              .StringaCoefficiente = compensi.StringaCoefficiente},
                             IntInLire(stato, onorario));
  };
  const bool piuAddetti = fase == FaseEsl::Direzione && lotto.NumeroAddetti > 1;
  gruppo(" aliquote base : ", kTabellaBEsl, lotto.PrestazioniBase, 2, "");
  gruppo("aliquote integrative : ", kTabellaB1Esl, lotto.PrestazioniIntegrative, 3,
         piuAddetti ? "(x" + NumberText(lotto.NumeroAddetti) + ")" : "");
  return totale;
}

void NotaEsl::CalcolaContabilita() {
  TotaleContabilita = StampaContabilita(stato, contemp, compensi);
  TotaleGenerale += TotaleContabilita;
}

void NotaEsl::CalcolaCertificato() {
  if (d.CertificatoRegolare != "SI" || SommaDirezione == 0) return;
  TotaleCertificato = StampaCertificato(stato, kPeriodo, SommaDirezione, compensi);
  TotaleGenerale += TotaleCertificato;
}

void NotaEsl::StampaRiepilogo() {
  std::array<double, 4> importi = {TotaleProgetto, TotaleDirezione, TotaleContabilita,
                                   TotaleCertificato};
  StampaRiepilogoEsl(stato, "EL", importi);
}

}  // namespace

void CalcoloEsl(RunState& stato, double& totale) {
  DatiEsl dati;
  LeggiParcella(stato, dati);
  ApriParcella(stato, stato.FileInt, "Per le prestazioni sottoelencate relative a :");
  NotaEsl nota(stato, dati);
  nota.StampaSpecifica();
  nota.CalcolaCompensi();
  nota.CalcolaLotti();
  nota.CalcolaContabilita();
  nota.CalcolaCertificato();
  nota.StampaRiepilogo();
  totale = nota.Totale();
  nota.Chiudi();
}

}  // namespace orm
