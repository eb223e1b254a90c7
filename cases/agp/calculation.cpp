// The fee of price updating: for each lot a part of the design fee of Table A.
#include "cases/agp/agp.h"
#include "cases/agp/data.h"
#include "tariff/chains/percentage_chains.h"
#include "tariff/law/table_articles.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/parcella.h"
#include "tariff/period_code.h"

namespace orm {
namespace {

class NotaAgp : public Parcella {
 public:
  NotaAgp(Parcella parcella, const DatiAgp& dati)
      : Parcella(std::move(parcella)),
        d(dati),
        periodo(PeriodoDaCodice(dati.PeriodoTariffario, kPeriodo2001)),
        CoefficienteMetodo(dati.TipoDiAggiornamento == "SEMPLICE AGGIORNAMENTO"
                               ? kAggiornamentoSemplice
                               : kNuoveAnalisi) {}

  void StampaMetodologia();
  void CalcolaLotti();
  void CalcolaMaggiorazione();
  void Chiudi() { ChiudiConCompensi(MaggiorazioneConglobata() ? 0 : maggiorazione); }

 private:
  void CalcolaLotto(const LottoAgp& lotto);
  static Passaggio PassoAliquota(const LottoAgp& lotto, double aliquota);
  Passaggio PassoMetodo() const;
  // Compensations are in the surcharge too.
  bool MaggiorazioneConglobata() const { return criteri.CompensiSuMaggiorazione == "SI"; }

  const DatiAgp& d;
  const int periodo;
  const double CoefficienteMetodo;
  double maggiorazione = 0;
};

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
  for (const LottoAgp& lotto : d.Lotti) CalcolaLotto(lotto);
}

// Beyond the limit of Table A both percentages stand before both fees.
void NotaAgp::CalcolaLotto(const LottoAgp& lotto) {
  uscita.Line(TitoloLotto(++progressivo, lotto.Classe, lotto.Categoria) + " (" +
              NomePeriodoTariffario(periodo) + ")");
  const auto percentuali =
      PercentualiDellaBase(lotto.Importo, periodo, lotto.Classe, lotto.Categoria);
  const auto quote = QuoteDellImporto(percentuali, lotto.Importo);
  StampaPercentuali(" Percentuale tabella A = ", percentuali, lotto.Importo, 40);
  const double aliquota = AliquotaAggiornamento(lotto.Classe, lotto.Categoria);
  const auto ragioni = [&]() -> Ragioni {
    return {
        "Art. 23, aggiornamento dei prezzi: percentuale, importo, aliquota e parte che ne spetta, "
        "per il coefficiente dei compensi",
        {PassoAliquota(lotto, aliquota), PassoMetodo()}};
  };
  const std::string inizio = FormattaCopia(CoefficienteMetodo, 2) + " x ";
  for (const auto& [importo, P] : quote)
    TotaleGenerale += StampaOnorario(
        {.inizio = inizio,
         .aliquota = aliquota,
         .percentuale = P,
         .importo = TestoImporto(importo)},
        P.valore * importo * aliquota * CoefficienteMetodo / 100 * Coefficiente, ragioni);
}

Passaggio NotaAgp::PassoAliquota(const LottoAgp& lotto, double aliquota) {
  return {"Art. 19, Tabella B, " + ClasseInParole(lotto.Classe, lotto.Categoria) +
              ", aliquota d, preventivo particolareggiato",
          "", aliquota};
}

Passaggio NotaAgp::PassoMetodo() const {
  return {"Art. 23, " +
              std::string(d.TipoDiAggiornamento == "SEMPLICE AGGIORNAMENTO"
                              ? "semplici variazioni percentuali dei primitivi prezzi"
                              : "nuove analisi prezzi") +
              ": parte che spetta dell'aliquota",
          "", CoefficienteMetodo};
}

void NotaAgp::CalcolaMaggiorazione() {
  if (d.EsecutoreDellAggiornamento != "SI") return;
  uscita.Line(Numero() + " MAGGIORAZIONE PER INCARICO PARZIALE");
  const bool conglobata = MaggiorazioneConglobata();
  const double base = conglobata ? TotaleGenerale.Valore() : SenzaCompensi(TotaleGenerale);
  Conto quota = kIncaricoParziale * TotaleGenerale;
  if (!conglobata) quota = Coefficiente == 0 ? Conto(0) : quota / Coefficiente;
  maggiorazione = IntInLire(quota);
  StampaRigaOnorario(1, " " + TestoQuota(kIncaricoParziale) + TestoImporto(base) + " =",
                     maggiorazione);
  Spiega([&]() -> Catena {
    Passaggio passo = PassoOnorario(
        "Art. 23-b e art. 18, incarico parziale: un quarto degli onorari dell'aggiornamento",
        quota);
    if (!conglobata)
      passo.regola += ", senza i compensi accessori come dicono i criteri di calcolo";
    passo.Annota("Nei dati l'aggiornamento non è \"ESEGUITO DALLO STESSO PROGETTISTA\"");
    return {std::move(passo)};
  });
  TotaleGenerale += maggiorazione;
}

}  // namespace

Parcella CalcoloAgp(Parcella parcella, const DatiAgp& dati) {
  NotaAgp nota(std::move(parcella), dati);
  nota.ApriParcella("Per l'aggiornamento prezzi relativo a :");
  nota.StampaImporti(" - Importo aggiornato LAVORI ", dati.Lotti);
  nota.StampaMetodologia();
  nota.CalcolaLotti();
  nota.CalcolaMaggiorazione();
  nota.Chiudi();
  return nota;
}

}  // namespace orm
