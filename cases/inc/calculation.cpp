// The fee of the chief engineer: shares of supervision, assistance to testing and liquidation in
// the fee of Table A, and of Table C where a certificate was confirmed.
#include "cases/inc/config.h"
#include "cases/inc/data.h"
#include "cases/inc/inc.h"
#include "runtime/explanation/steps.h"
#include "tariff/chains/compensation_chains.h"
#include "tariff/chains/percentage_chains.h"
#include "tariff/explanations.h"
#include "tariff/law/table_b.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/parcella.h"
#include "tariff/period_code.h"

namespace orm {
namespace {

constexpr std::string_view kServiziInc = "gil";

class NotaInc : public Parcella {
 public:
  NotaInc(Parcella parcella, const DatiInc& dati, const QuoteInc& quoteDiLegge)
      : Parcella(std::move(parcella)),
        d(dati),
        quote(quoteDiLegge),
        periodo(PeriodoDaCodice(dati.PeriodoTariffario, kPeriodo1987)) {}

  void CalcolaImporti();
  void CalcolaLotti();
  void CalcolaCertificato();

 private:
  void CalcolaLotto(const LottoInc& lotto, const Conto& aliquota);
  static Passaggio PassoAliquota(const LottoInc& lotto, const Conto& aliquota);
  static bool Svolta(const LottoInc& lotto, char lettera) {
    return lotto.Prestazioni.find(lettera) != std::string::npos;
  }

  const DatiInc& d;
  const QuoteInc quote;
  const int periodo;
  Conto somma;
};

// The tariff of the chief engineer allows no more than its own greatest percentage.
void NotaInc::CalcolaImporti() {
  somma = StampaImporti(" - Importo LAVORI ", d.Lotti);
  const double massimo = 1 + quote.massimoCompensi / 100;
  if (Coefficiente <= massimo) return;
  Coefficiente = massimo;
  StringaCoefficiente = " x " + FormattaNumero(Coefficiente, 2);
  uscita.Text("ridotta al massimo del ").Bare(quote.massimoCompensi).Line("%");
  spiegazioni.Riga(uscita.Contents(), [&] {
    Passaggio limite{"Tariffa dell'ingegnere capo, dalla " + TabellaPersonale(kFileInc, "") +
                         ": massimo dei compensi accessori, che quelli calcolati superano",
                     "", quote.massimoCompensi, "%"};
    limite.cifra = CifraNuda(quote.massimoCompensi);
    CatenaCompensi = {limite, PassoCoefficiente(quote.massimoCompensi, massimo)};
    CatenaCompensi.back().tagli = {{TipoTaglio::Decimali, 2, massimo, Coefficiente}};
    return Catena{std::move(limite)};
  });
}

// A lot without services has no fee and no number.
void NotaInc::CalcolaLotti() {
  uscita.Line(kRigaOnorariCompensi);
  for (const LottoInc& lotto : d.Lotti) {
    Conto aliquota = Zero();
    bool svolta = false;
    for (const auto& [lettera, quota] :
         {std::pair{'g', quote.direzione}, {'i', quote.assistenza}, {'l', quote.liquidazione}}) {
      if (!Svolta(lotto, lettera)) continue;
      svolta = true;
      aliquota += Conto(quota) * AliquotaTabellaB(lotto.Classe, lotto.Categoria, lettera);
    }
    if (svolta) CalcolaLotto(lotto, aliquota);
  }
}

Passaggio NotaInc::PassoAliquota(const LottoInc& lotto, const Conto& aliquota) {
  std::string nomi;
  for (std::size_t i = 0; i < kLettereTabellaB.size(); ++i)
    if (kServiziInc.find(kLettereTabellaB[i]) != std::string::npos &&
        Svolta(lotto, kLettereTabellaB[i]))
      nomi += (nomi.empty() ? "" : "; ") + std::string(1, kLettereTabellaB[i]) + " - " +
              kPrestazioniTabellaB[i];
  return {"Quote dell'ingegnere capo, dalla " + TabellaPersonale(kFileInc, "") +
              ", ognuna per l'aliquota dell'art. 19, Tabella B, " +
              ClasseInParole(lotto.Classe, lotto.Categoria) + ": " + nomi,
          aliquota, aliquota.Valore()};
}

void NotaInc::CalcolaLotto(const LottoInc& lotto, const Conto& aliquota) {
  uscita.Line(TitoloLotto(++progressivo, lotto.Classe, lotto.Categoria) + " (" +
              NomePeriodoTariffario(periodo) + ")");
  uscita.Line("  Prestazioni : " + lotto.Prestazioni);
  const auto percentuali =
      PercentualiDellaBase(lotto.Importo, periodo, lotto.Classe, lotto.Categoria);
  const auto quoteImporto = QuoteDellImporto(percentuali, lotto.Importo);
  StampaPercentuali(" Percentuale tabella A = ", percentuali, lotto.Importo, 40);
  const auto ragioni = [&]() -> Ragioni {
    return {
        "Ingegnere capo: percentuale, importo dei lavori e aliquota, per il coefficiente dei "
        "compensi",
        {PassoAliquota(lotto, aliquota)}};
  };
  for (const auto& [importo, P] : quoteImporto)
    TotaleGenerale +=
        StampaOnorario({.inizio = "",
                        .aliquota = aliquota,
                        .decimali = 4,
                        .percentuale = P,
                        .importo = TestoImporto(importo)},
                       P.valore * importo * aliquota.Valore() / 100 * Coefficiente, ragioni);
}

void NotaInc::CalcolaCertificato() {
  if (d.CertificatoRegolareEsecuzione != "SI" || somma <= 0) return;
  const Percentuale P = PercentualeDaTabellaC(periodo, ImportoInLire(somma));
  const Conto onorario = Conto(quote.tabellaC) * P.valore * somma / 100 * Coefficiente;
  StampaVoce("CONFERMA CERTIFICATO DI REGOLARE ESECUZIONE",
             FormattaCopia(quote.tabellaC, 2) + " x " + P.testo + " x " + TestoImporto(somma) +
                 StringaCoefficiente + " =",
             onorario, [&] {
               return CatenaOnorario(
                   P, onorario,
                   {"Conferma del certificato di regolare esecuzione: quota della percentuale di "
                    "Tabella C e importo dei lavori, per il coefficiente dei compensi",
                    Unite({{"Quota dell'ingegnere capo nella Tabella C, dalla " +
                                TabellaPersonale(kFileInc, ""),
                            "", quote.tabellaC}},
                          CatenaInLire(somma))});
             });
}

}  // namespace

Parcella CalcoloInc(Parcella parcella, const DatiInc& dati, const TariffaInc& tariffa) {
  NotaInc nota(std::move(parcella), dati, tariffa.Quote());
  nota.ApriParcella("per le prestazioni di Ingegnere Capo relative a :");
  nota.CalcolaImporti();
  nota.CalcolaLotti();
  nota.CalcolaCertificato();
  nota.ChiudiConCompensi();
  return nota;
}

}  // namespace orm
