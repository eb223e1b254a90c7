// Looking up the tables of site safety.
#pragma once

#include "tariff/law/table_site_safety.h"

namespace orm {

// "SC2" has the version of 2001, any other code that of the national councils.
constexpr const VersioneSic& VersioneDi(std::string_view codice) {
  return codice == "SC2" ? kVersioneSc2 : kVersioneSc1;
}

// The percentages of the conditions marked "1", summed; no other character counts.
constexpr double SommaCondizioni(std::span<const CondizioneSic> condizioni,
                                 std::string_view segni) {
  double somma = 0;
  for (std::size_t i = 0; i < condizioni.size() && i < segni.size(); ++i)
    if (segni[i] == '1') somma += condizioni[i].percentuale;
  return somma;
}

}  // namespace orm
