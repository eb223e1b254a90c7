// A note for other programs: whole as JSON, from which its files can be made again, and its amounts
// as CSV. docs/interchange.md describes both.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "runtime/dates.h"
#include "runtime/folder.h"
#include "tariff/parcella.h"

namespace orm {

// The note of a folder, reckoned with the criteria that are kept there. Nothing is written. A file
// that is missing or damaged is a RuntimeFailure. `spiega`: it explains its figures too.
Parcella CalcolaDaCartella(const WorkFolder& folder, const std::string& codice, bool lire,
                           const Date& oggi = SystemDate(), bool spiega = false);

// The note as JSON, in UTF-8. Failures as above.
std::string ParcellaInJson(const WorkFolder& folder, const std::string& codice, bool lire,
                           const Date& oggi = SystemDate());

// How a table marks its fields and its decimals.
enum class MarchiCsv {
  Italiani,  // semicolon and comma, with the mark by which spreadsheets know UTF-8
  Semplici   // comma and full stop
};

// The lines with an amount, one a row. Failures as above.
std::string ParcellaInCsv(const WorkFolder& folder, const std::string& codice, bool lire,
                          MarchiCsv marchi, const Date& oggi = SystemDate());

// Makes the files of a note from its JSON and gives their names: header and data, and those of the
// professional and of the criteria where the JSON has them. All of it is read before anything is
// written; whatever is wrong is a RuntimeFailure with its place in `nomeJson`. What is replaced
// stays among the generations, a file that holds the same already is not touched.
std::vector<std::string> ScriviDaJson(const WorkFolder& folder, const std::string& nomeJson,
                                      std::string_view json);

}  // namespace orm
