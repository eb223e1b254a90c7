// The slices of an amount above the limit of Table A, each with a percentage of its own.
#pragma once

#include <vector>

#include "tariff/lot_lines.h"

namespace orm {

// 5,000 million Lire, in the currency of the note.
double LimiteTabellaA(const RunState& stato);

// Table A of a base: above the limit there is one percentage for what lies within it and one for
// the rest. A second one that is not needed has no text.
struct PercentualiTabellaA {
  Percentuale entro, oltre;
  bool divise = false;
};
PercentualiTabellaA PercentualiDellaBase(const RunState& stato, double base, int periodo,
                                         std::string_view classe, std::string_view categoria);

// An amount or a part of it with its percentage.
struct QuotaImporto {
  double importo;
  const Percentuale& percentuale;
};
// The base decides: where it is above the limit, the whole limit and what the amount has beyond it,
// even less than nothing.
std::vector<QuotaImporto> QuoteDellImporto(const PercentualiTabellaA& percentuali, double importo,
                                           double limite);
// The same along the running sum of a lot's supervision, `prima` before this amount: what still
// lies within the limit, and the rest.
std::vector<QuotaImporto> QuoteProgressive(const PercentualiTabellaA& percentuali, double importo,
                                           double prima, double limite);

}  // namespace orm
