#include "tariff/table_a_slices.h"

#include "tariff/law/table_a.h"
#include "tariff/parcella.h"

namespace orm {

double Parcella::LimiteTabellaA() const { return InValuta(kLimiteTabellaA); }

PercentualiTabellaA Parcella::PercentualiDellaBase(double base, int periodo,
                                                   std::string_view classe,
                                                   std::string_view categoria) const {
  const auto tabella = [&](double importo) {
    return PercentualeDaTabellaA(importo, periodo, classe, categoria);
  };
  const double limite = LimiteTabellaA();
  if (base > limite) return {tabella(limite), tabella(base), true};
  return {tabella(base), {}, false};
}

std::vector<QuotaImporto> Parcella::QuoteDellImporto(const PercentualiTabellaA& percentuali,
                                                     const Conto& importo) const {
  if (!percentuali.divise) return {{Zero() + importo, percentuali.entro}};
  const double limite = LimiteTabellaA();
  return {{Zero() + limite, percentuali.entro}, {Zero() + importo - limite, percentuali.oltre}};
}

std::vector<QuotaImporto> Parcella::QuoteProgressive(const PercentualiTabellaA& percentuali,
                                                     const Conto& importo,
                                                     const Conto& prima) const {
  const double limite = LimiteTabellaA();
  const Conto parte = Zero() + importo;
  if (!percentuali.divise || prima.Valore() + importo.Valore() <= limite)
    return {{parte, percentuali.entro}};
  if (prima >= limite) return {{parte, percentuali.oltre}};
  const Conto entro = prima == 0 ? Zero() + limite : limite - prima;
  return {{entro, percentuali.entro}, {parte - entro, percentuali.oltre}};
}

}  // namespace orm
