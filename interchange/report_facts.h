// What a report states of its note, read from its text: the net amount and the day.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "runtime/dates.h"

namespace orm {

// The net amount of a note, in its currency.
struct Netto {
  double importo = 0;
  std::string testo;  // with its currency, as reports print it: "L. 1.000.000", "€ 516,46"
  std::optional<double> euro;  // of a note in Lire
};

// The net amount that a report states (bytes as they are in the file), nothing where it states
// none. `lire`: in which currency the note is.
std::optional<Netto> NettoDellaRelazione(std::string_view bytes, bool lire);
// The day at the end of the final account, which a report without the professional's city lacks.
std::optional<Date> GiornoDellaRelazione(std::string_view bytes);

}  // namespace orm
