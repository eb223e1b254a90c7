// The fee of support to the procedure manager: for each lot and activity its aliquot of the fee of
// the curve of 2001.
#include "cases/sup/data.h"
#include "cases/sup/sup.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

class NotaSup : public Parcella {
 public:
  NotaSup(Parcella parcella, const DatiSup& dati) : Parcella(std::move(parcella)), d(dati) {}

  void CalcolaLotti();

 private:
  void CalcolaLotto(const LottoSup& lotto);

  const DatiSup& d;
};

void NotaSup::CalcolaLotti() {
  uscita.Line(kRigaOnorariCompensi);
  for (const LottoSup& lotto : d.Lotti) CalcolaLotto(lotto);
}

void NotaSup::CalcolaLotto(const LottoSup& lotto) {
  uscita.Line(TitoloLotto(++progressivo, lotto.Classe, lotto.Categoria) + " (" +
              NomePeriodoTariffario(kPeriodo2001) + ")");
  const Percentuale P = PercentualeDaTabellaNuova(lotto.Importo, lotto.Classe, lotto.Categoria);
  StampaPercentuale(" % Supp. (Tab. A) = ", P, lotto.Importo);
  for (const AttivitaSup& attivita : d.Attivita) {
    uscita.Line(attivita.Attivita);
    TotaleGenerale += StampaOnorario(
        {.inizio = "",
         .percentualePrima = true,
         .aliquota = attivita.Aliquota,
         .decimali = 5,
         .percentuale = P,
         .importo = TestoImporto(lotto.Importo)},
        Conto(lotto.Importo) * P.valore / 100 * attivita.Aliquota * Coefficiente, [&]() -> Ragioni {
          return {
              "Supporto al responsabile del procedimento, D.M. 4-4-2001, Tabella B6: importo dei "
              "lavori, percentuale e aliquota, per il coefficiente dei compensi",
              {PassoDato("ALIQUOTA DELLA TABELLA B6", attivita.Aliquota)}};
        });
  }
}

}  // namespace

Parcella CalcoloSup(Parcella parcella, const DatiSup& dati) {
  NotaSup nota(std::move(parcella), dati);
  nota.ApriParcella("per le prestazioni di supporto al responsabile del procedimento relative a :");
  nota.StampaImporti(" - Importo LAVORI ", dati.Lotti);
  nota.CalcolaLotti();
  nota.ChiudiConCompensi();
  return nota;
}

}  // namespace orm
