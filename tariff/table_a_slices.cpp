#include "tariff/table_a_slices.h"

#include "tariff/law/table_a.h"
#include "tariff/money.h"

namespace orm {

double LimiteTabellaA(const RunState& stato) {
  return stato.ModoLire ? kLimiteTabellaA : LireInEuro(kLimiteTabellaA);
}

PercentualiTabellaA PercentualiDellaBase(const RunState& stato, double base, int periodo,
                                         std::string_view classe, std::string_view categoria) {
  const auto tabella = [&](double importo) {
    return PercentualeDaTabellaA(stato, importo, periodo, classe, categoria);
  };
  const double limite = LimiteTabellaA(stato);
  if (base > limite) return {tabella(limite), tabella(base), true};
  return {tabella(base), {}, false};
}

std::vector<QuotaImporto> QuoteDellImporto(const PercentualiTabellaA& percentuali, double importo,
                                           double limite) {
  if (!percentuali.divise) return {{importo, percentuali.entro}};
  return {{limite, percentuali.entro}, {importo - limite, percentuali.oltre}};
}

std::vector<QuotaImporto> QuoteProgressive(const PercentualiTabellaA& percentuali, double importo,
                                           double prima, double limite) {
  if (!percentuali.divise || prima + importo <= limite) return {{importo, percentuali.entro}};
  if (prima >= limite) return {{importo, percentuali.oltre}};
  const double entro = limite - prima;
  return {{entro, percentuali.entro}, {importo - entro, percentuali.oltre}};
}

}  // namespace orm
