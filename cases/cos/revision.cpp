// The fee of the revision of stability calculations (art. 19-f).
#include "cases/cos/note.h"
#include "tariff/chains/percentage_chains.h"
#include "tariff/law/table_articles.h"
#include "tariff/law/tariff_tables.h"

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
  Conto SommaLotto;
  for (std::size_t j = 0; j < lotto.PeriodoDelLotto.size(); ++j)
    SommaLotto += d.Righe[primaRiga + j].ImportoVerificato;
  for (std::size_t j = 0; j < lotto.PeriodoDelLotto.size(); ++j)
    RevisioneRiga(primaRiga + j + 1, d.Righe[primaRiga + j], lotto.PeriodoDelLotto[j], SommaLotto);
}

// Of the whole lot, in each period's own table. The curve of 2001 knows no limit and no slices.
PercentualiTabellaA NotaCos::PercentualiRevisione(const RigaCos& riga, int periodo,
                                                  const Conto& SommaLotto) const {
  if (CasoDiParcella == "CS1")
    return PercentualiDellaBase(SommaLotto, periodo, riga.Classe, riga.Categoria);
  return {PercentualeDaTabellaNuova(SommaLotto, riga.Classe, riga.Categoria), {}};
}

void NotaCos::RevisioneRiga(std::size_t numeroRiga, const RigaCos& riga, int periodo,
                            const Conto& SommaLotto) {
  const PercentualiTabellaA percentuali = PercentualiRevisione(riga, periodo, SommaLotto);
  uscita.Text(TitoloLotto(numeroRiga, riga.Classe, riga.Categoria));
  if (CasoDiParcella == "CS1") uscita.Tab(32).Text(NomePeriodoTariffario(periodo));
  uscita.EndLine();
  StampaLavori(6, "  - Importo dei Lavori verificati", riga.ImportoVerificato,
               "LAVORI VERIFICATI, Importo del Lotto");
  StampaPercentuali(kVocePercentualeProgetto, percentuali, SommaLotto, 33,
                    "Importo dei lavori verificati del lotto");
  const double aliquota = AliquotaRevisione(CasoDiParcella, riga);
  const std::string inizio = TestoQuota(kRevisioneCalcoli);
  const auto ragioni = [&]() -> Ragioni {
    return {
        "Art. 19-f, revisione dei calcoli di stabilità: importo dei lavori verificati per 0,20, "
        "per percentuale e per aliquota, per il coefficiente dei compensi",
        {{(CasoDiParcella == "CS1" ? "Art. 19, Tabella B, aliquota c, progetto esecutivo, "
                                   : "D.M. 4-4-2001, Tabella B, aliquota f, relazione generale e "
                                     "specialistiche, elaborati grafici, calcoli esecutivi, ") +
              ClasseInParole(riga.Classe, riga.Categoria),
          "", aliquota}}};
  };
  for (const auto& [importo, P] : QuoteDellImporto(percentuali, riga.ImportoVerificato))
    revisione += StampaOnorario(
        {.inizio = inizio,
         .aliquota = aliquota,
         .decimali = 3,
         .percentuale = P,
         .importo = TestoImporto(importo)},
        importo * kRevisioneCalcoli * P.valore * aliquota / 100 * Coefficiente, ragioni);
}

}  // namespace orm
