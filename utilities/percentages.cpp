// Percentages of the tariff.
#include "utilities/percentages.h"

#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/percentages.h"

namespace orm {
namespace {

std::string Testo(double percentuale, double importoLire, const Criteri& criteri) {
  int decimali = 0;
  DecimaliPercentuale(importoLire, decimali, criteri.DecimaliTabelle);
  return FormattaCopia(percentuale, decimali) + "%";
}

}  // namespace

Percentuali CalcolaPercentuali(const RichiestaPercentuali& r, const Criteri& criteri) {
  const bool nuova = r.periodo == kPeriodo2001;
  if (r.importo == 0) return nuova ? Percentuali{"", "", "0%"} : Percentuali{"0%", "0%", ""};
  // Tables A and of 2001 take whole Lire as a number without decimals, Table C by the conversion.
  double lire = r.lire ? r.importo : EuroInLire(r.importo);
  const double mostrato = lire;

  Percentuali esito;
  double percentuale = 0;
  if (nuova) {
    if (r.lire)
      PercentualeTabellaNuova(lire, r.classe, r.categoria, percentuale);
    else
      PercentualeTabellaNuovaDaEuro(r.importo, r.classe, r.categoria, percentuale);
    esito.nuova = Testo(percentuale, mostrato, criteri);
    return esito;
  }
  if (r.lire)
    PercentualeTabellaA(lire, r.periodo, r.classe, r.categoria, percentuale);
  else
    PercentualeTabellaADaEuro(r.importo, r.periodo, r.classe, r.categoria, percentuale);
  esito.tabellaA = Testo(percentuale, mostrato, criteri);
  PercentualeTabellaContabilita(r.periodo, mostrato, percentuale);
  esito.tabellaC = Testo(percentuale, mostrato, criteri);
  return esito;
}

double PercentualeDiCurva(double importoLire, const RichiestaPercentuali& r) {
  double percentuale = 0;
  if (r.periodo == kPeriodo2001)
    PercentualeTabellaNuova(importoLire, r.classe, r.categoria, percentuale);
  else
    PercentualeTabellaA(importoLire, r.periodo, r.classe, r.categoria, percentuale);
  return percentuale;
}

}  // namespace orm
