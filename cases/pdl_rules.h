// Rules of the notes of design and supervision that print nothing: the bases of a lot, the services
// of a row, and the slices of an amount above the limit of Table A.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "cases/pdl_data.h"
#include "tariff/lot_lines.h"
#include "tariff/tariff_tables.h"

namespace orm {

// The amounts that a lot's percentages are taken on, over all its rows, and by how much the works
// supervised go beyond the design, where no variation explains it.
struct BasiLotto {
  double BaseProgetto = 0, BaseDirezione = 0, EccedenzaLavori = 0;
};
BasiLotto BasiDelLotto(std::span<const RigaPdl> righe, std::string_view TipoParcella);

// 1 for each service done, a to l: all of them with "T". Letters stand at every second character
// of the string; any other letter is a RuntimeFailure.
Aliquote ServiziFatti(std::string_view TipoPrestazione, std::string_view prestazioni);
// The letters of a group in the order of the table, "a+c+f".
enum class GruppoServiziPdl { Progetto, Direzione };
std::string TestoPrestazioni(const Aliquote& fatti, GruppoServiziPdl gruppo);

// 5,000 million Lire, in the currency of the note.
double LimiteTabellaA(const RunState& stato);

// Table A of a base: above the limit there is one percentage for what lies within it and one for
// the rest. A second one that is not needed has no text.
struct PercentualiTabellaA {
  Percentuale entro, oltre;
  bool divise = false;
};
PercentualiTabellaA PercentualiDellaBase(const RunState& stato, double base, int periodo,
                                         const RigaPdl& riga);

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
