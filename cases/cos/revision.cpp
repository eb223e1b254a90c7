// The fee of the revision of stability calculations (art. 19-f).
#include "cases/cos/note.h"
#include "tariff/law/table_articles.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/report.h"

namespace orm {

double AliquotaRevisione(const std::string& codice, const RigaCos& riga) {
  return AliquotaRevisioneCalcoli(riga.Classe, riga.Categoria, codice != "CS1");
}

void NotaCos::RevisioneCalcoliCos() {
  if (d.RevisioneCalcoli == "NO") return;
  uscita.Line(Numero() + " Compenso per revisione calcoli di stabilità ( art. 19-f )");
  std::size_t riga = 0;
  for (const LottoARighe& lotto : d.Lotti) {
    RevisioneLotto(riga, lotto);
    riga += lotto.PeriodoDelLotto.size();
  }
}

void NotaCos::RevisioneLotto(std::size_t primaRiga, const LottoARighe& lotto) {
  double SommaLotto = 0;
  for (std::size_t j = 0; j < lotto.PeriodoDelLotto.size(); ++j)
    SommaLotto += d.Righe[primaRiga + j].ImportoVerificato;
  for (std::size_t j = 0; j < lotto.PeriodoDelLotto.size(); ++j)
    RevisioneRiga(primaRiga + j + 1, d.Righe[primaRiga + j], lotto.PeriodoDelLotto[j], SommaLotto);
}

// Percentages are those of the whole lot, its rows in each period's own table. The curve of 2001
// knows no limit and no slices.
void NotaCos::RevisioneRiga(std::size_t numeroRiga, const RigaCos& riga, int periodo,
                            double SommaLotto) {
  const bool tabellaA = stato.CasoDiParcella == "CS1";
  const PercentualiTabellaA percentuali =
      tabellaA ? PercentualiDellaBase(stato, SommaLotto, periodo, riga.Classe, riga.Categoria)
               : PercentualiTabellaA{
                     PercentualeDaTabellaNuova(stato, SommaLotto, riga.Classe, riga.Categoria), {}};
  const double limite = LimiteTabellaA(stato);

  uscita.Text(TitoloLotto(numeroRiga, riga.Classe, riga.Categoria));
  if (tabellaA) uscita.Tab(32).Text(NomePeriodoTariffario(periodo));
  uscita.EndLine();
  StampaLavori(stato, 6, "  - Importo dei Lavori verificati", riga.ImportoVerificato);
  for (const QuotaImporto& quota : QuoteDellImporto(percentuali, SommaLotto, limite))
    StampaPercentuale(stato, kVocePercentualeProgetto, quota.percentuale, quota.importo);
  const double aliquota = AliquotaRevisione(stato.CasoDiParcella, riga);
  const std::string inizio = FormattaCopia(kRevisioneCalcoli, -2) + " x ";
  for (const QuotaImporto& quota : QuoteDellImporto(percentuali, riga.ImportoVerificato, limite))
    revisione += StampaOnorario(
        stato,
        {.inizio = inizio,
         .aliquota = aliquota,
         .decimali = 3,
         .percentuale = quota.percentuale,
         .importo = quota.importo,
         .StringaCoefficiente = compensi.StringaCoefficiente},
        IntInLire(stato, quota.importo * kRevisioneCalcoli * quota.percentuale.valore * aliquota /
                             100 * compensi.Coefficiente));
}

}  // namespace orm
