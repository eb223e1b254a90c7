// A note for other programs: whole as JSON, from which its files can be made again, and its amounts
// as CSV. docs/interchange.md describes both.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cases/fee_case.h"
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

// The files of a note as its JSON has them: header and data, and those of the professional and of
// the criteria where it has them.
struct FileDaJson {
  std::string nome, bytes;
  bool dellaNota = false;  // header or data; the others are of all notes of a folder
};
struct NotaDaJson {
  NotaDiCaso nota;
  std::vector<FileDaJson> files;
};
// Whatever is wrong is a RuntimeFailure with its place in `nomeJson`.
NotaDaJson LeggiNotaDaJson(const std::string& nomeJson, std::string_view json);

// Makes those files and gives their names. All is read before anything is written. What is replaced
// stays among the generations, a file that holds the same already is not touched.
std::vector<std::string> ScriviDaJson(const WorkFolder& folder, const std::string& nomeJson,
                                      std::string_view json);

}  // namespace orm
