// The fee of price updating: for each lot a part of the design fee of Table A.
#include "cases/agp/agp.h"
#include "cases/agp/data.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/files/closing_line.h"
#include "tariff/law/table_articles.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/report.h"
#include "tariff/table_a_slices.h"

namespace orm {
namespace {

int Periodo(const DatiAgp& dati) {
  const auto periodo = ParseNumber(dati.PeriodoTariffario);
  if (!periodo || *periodo < 1 || *periodo > 6 || *periodo != Int(*periodo))
    throw RuntimeFailure("Il periodo tariffario \"" + dati.PeriodoTariffario + "\" non esiste.")
        .AtField("PeriodoTariffario");
  return static_cast<int>(*periodo);
}

class NotaAgp {
 public:
  NotaAgp(RunState& run, const DatiAgp& dati)
      : stato(run),
        uscita(run.NumFileUscita),
        d(dati),
        periodo(Periodo(dati)),
        CoefficienteMetodo(dati.TipoDiAggiornamento == "SEMPLICE AGGIORNAMENTO"
                               ? kAggiornamentoSemplice
                               : kNuoveAnalisi) {}

  void StampaSpecifica();
  void CalcolaCompensi();
  void StampaMetodologia();
  void CalcolaLotti();
  void CalcolaMaggiorazione();
  void Chiudi();

 private:
  void CalcolaLotto(std::size_t numero, const LottoAgp& lotto);
  // Compensations are in the surcharge too.
  bool MaggiorazioneConglobata() const { return stato.criteri.CompensiSuMaggiorazione == "SI"; }

  RunState& stato;
  ReportPrinter& uscita;
  const DatiAgp& d;
  const int periodo;
  const double CoefficienteMetodo;
  Compensi compensi;
  double totale = 0, maggiorazione = 0;
};

void NotaAgp::StampaSpecifica() {
  uscita.Line(kRigaImporti);
  for (std::size_t i = 0; i < d.Lotti.size(); ++i) {
    uscita.Line(TitoloLotto(i + 1, d.Lotti[i].Classe, d.Lotti[i].Categoria));
    StampaLavori(stato, 5, " - Importo aggiornato LAVORI ", d.Lotti[i].Importo);
  }
}

void NotaAgp::CalcolaCompensi() {
  double somma = 0;
  for (const LottoAgp& lotto : d.Lotti) somma += lotto.Importo;
  compensi = StampaCompensiAccessori(stato, somma);
}

void NotaAgp::StampaMetodologia() {
  uscita.Line(kRigaAggiornamentoPrezzi);
  if (d.TipoDiAggiornamento == "SEMPLICE AGGIORNAMENTO")
    uscita.Line("Aggiornamento in base a semplici variazioni percentuali dei ")
        .Line("primitivi prezzi.");
  else
    uscita.Line("Aggiornamento in base a nuove analisi prezzi");
}

void NotaAgp::CalcolaLotti() {
  uscita.Line(kRigaOnorariCompensi);
  for (std::size_t i = 0; i < d.Lotti.size(); ++i) CalcolaLotto(i + 1, d.Lotti[i]);
}

// Beyond the limit of Table A both percentages stand before both fees.
void NotaAgp::CalcolaLotto(std::size_t numero, const LottoAgp& lotto) {
  uscita.Line(TitoloLotto(numero, lotto.Classe, lotto.Categoria) + " (" +
              NomePeriodoTariffario(periodo) + ")");
  const auto percentuali =
      PercentualiDellaBase(stato, lotto.Importo, periodo, lotto.Classe, lotto.Categoria);
  const auto quote = QuoteDellImporto(percentuali, lotto.Importo, LimiteTabellaA(stato));
  for (const QuotaImporto& quota : quote)
    StampaPercentuale(stato, " Percentuale tabella A = ", quota.percentuale, quota.importo, 40);
  const double aliquota = AliquotaAggiornamento(lotto.Classe, lotto.Categoria);
  const std::string inizio = FormattaCopia(CoefficienteMetodo, 2) + " x ";
  for (const QuotaImporto& quota : quote)
    totale +=
        StampaOnorario(stato,
                       {.inizio = inizio,
                        .aliquota = aliquota,
                        .percentuale = quota.percentuale,
                        .importo = quota.importo,
                        .StringaCoefficiente = compensi.StringaCoefficiente},
                       IntInLire(stato, quota.percentuale.valore * quota.importo * aliquota *
                                            CoefficienteMetodo / 100 * compensi.Coefficiente));
}

void NotaAgp::CalcolaMaggiorazione() {
  if (d.EsecutoreDellAggiornamento != "SI") return;
  uscita.Line(NumberText(static_cast<double>(d.Lotti.size() + 1)) +
              " - MAGGIORAZIONE PER INCARICO PARZIALE");
  const double base = MaggiorazioneConglobata() ? totale : SenzaCompensi(totale, compensi);
  const double quarto = kIncaricoParziale * totale;
  maggiorazione =
      IntInLire(stato, MaggiorazioneConglobata() ? quarto : SenzaCompensi(quarto, compensi));
  StampaRigaOnorario(
      stato, 1,
      " " + FormattaCopia(kIncaricoParziale, -2) + " x " + TestoImporto(stato, base) + " =",
      maggiorazione);
  totale += maggiorazione;
}

void NotaAgp::Chiudi() {
  ChiudiConCompensi(stato, totale, compensi, MaggiorazioneConglobata() ? 0 : maggiorazione);
}

}  // namespace

void CalcoloAgp(RunState& stato) {
  DatiAgp dati;
  LeggiParcella(stato, dati);
  ApriParcella(stato, stato.FileInt, "Per l'aggiornamento prezzi relativo a :");
  NotaAgp nota(stato, dati);
  nota.StampaSpecifica();
  nota.CalcolaCompensi();
  nota.StampaMetodologia();
  nota.CalcolaLotti();
  nota.CalcolaMaggiorazione();
  nota.Chiudi();
}

}  // namespace orm
