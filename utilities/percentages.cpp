// Percentages of the tariff.
#include "utilities/percentages.h"

#include "runtime/explanation/conto.h"
#include "tariff/chains/percentage_chains.h"
#include "tariff/explanations.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "tariff/percentages.h"

namespace orm {
namespace {

// Cuts the percentage that the chain ends with, and writes it as its figure.
std::string Testo(Catena& catena, double importoLire, const Criteri& criteri) {
  int decimali = 0;
  DecimaliPercentuale(importoLire, decimali, criteri.DecimaliTabelle);
  Passaggio& ultimo = catena.back();
  double tagliata = *ultimo.risultato;
  ultimo.cifra = FormattaNumero(tagliata, decimali) + "%";
  ultimo.tagli = {{TipoTaglio::Decimali, decimali, *ultimo.risultato, tagliata}};
  if (Toglie(ultimo.tagli[0])) ultimo.Annota(MotivoDecimali(decimali, criteri.DecimaliTabelle));
  return ultimo.cifra;
}

// The step before a table, of an amount in Euro.
void InLire(Catena& catena, const RichiestaPercentuali& r, TipoTaglio taglio, double lire) {
  if (r.lire) return;
  const Conto conto = Conto(r.importo) * kLirePerEuro;
  catena.insert(catena.begin(), {.regola = "Importo in Lire, al cambio di 1.936,27",
                                 .conto = conto.Testo(),
                                 .risultato = conto,
                                 .unita = "Lire",
                                 .tagli = {{taglio, 0, conto, lire}}});
}

}  // namespace

Percentuali CalcolaPercentuali(const RichiestaPercentuali& r, const Criteri& criteri) {
  const bool nuova = r.periodo == kPeriodo2001;
  if (r.importo == 0)
    return nuova ? Percentuali{"", "", "0%", {}} : Percentuali{"0%", "0%", "", {}};
  // Tables A and of 2001 take whole Lire as a number without decimals, Table C by the conversion.
  double lire = r.lire ? r.importo : LireDiTabella(r.importo);
  const double mostrato = r.lire ? r.importo : EuroInLire(r.importo);

  Percentuali esito;
  double percentuale = 0;
  if (nuova) {
    LetturaCurva lettura;
    PercentualeTabellaNuova(lire, r.classe, r.categoria, percentuale, &lettura);
    Catena catena = CatenaTabellaNuova(lettura, lire, r.classe, r.categoria);
    esito.nuova = Testo(catena, mostrato, criteri);
    InLire(catena, r, TipoTaglio::Arrotonda, lire);
    esito.perche = {Risultato("D.M. 4-4-2001", std::move(catena))};
    return esito;
  }
  LetturaTabella lettura;
  PercentualeTabellaA(lire, r.periodo, r.classe, r.categoria, percentuale, &lettura);
  Catena catena = CatenaTabellaA(lettura, r.periodo, r.classe, r.categoria);
  esito.tabellaA = Testo(catena, mostrato, criteri);
  InLire(catena, r, TipoTaglio::Arrotonda, lire);
  PercentualeTabellaContabilita(r.periodo, mostrato, percentuale, &lettura);
  Catena catenaC = CatenaTabellaC(lettura, r.periodo);
  esito.tabellaC = Testo(catenaC, mostrato, criteri);
  InLire(catenaC, r, TipoTaglio::SullaCifra, mostrato);
  esito.perche = {Risultato("Tabella A", std::move(catena)),
                  Risultato("Tabella C", std::move(catenaC))};
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
