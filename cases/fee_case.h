// The one table of the fee cases: the only place that names them all. The menus, the commands and
// the two generic steps are driven by it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/state/run_state.h"
#include "tariff/files/note_fields.h"

namespace orm {

class Parcella;

// The groups of criteria that count for a case; the criteria dialog leaves the others inactive.
enum CriteriaGroups : std::uint8_t {
  kNoCriteria = 0,
  kCompensiAccessori = 1,  // percentage of the accessory compensations, and their decimals
  kDirezioneLavori = 2,    // aliquots of supervision cumulated or apart
  kTabelle = 4,            // decimals of the tables
  kCompensiSuVoci = 8,     // compensations on surveillance and on the partial commission
  kAllCriteria = 15
};

struct FeeCase {
  const char* code;
  // Menu captions in Lire; the Euro menu has the Euro mark in the place of the other. Entries with
  // the same caption in a row share one submenu of versions.
  const char* caption;
  const char* version;      // caption below a shared entry, or nullptr
  const char* euroCaption;  // where the Euro menu is worded otherwise, or nullptr
  const char* stem;         // control name without ending; nullptr: no menu entry
  bool inLireMenu;
  bool actsInEuroMenu;  // false: the commands stand there and do nothing
  CriteriaGroups criteria;
  // nullptr: not there yet, or (input of "CS2") not meant to be.
  void (*input)(RunState&);
  Parcella (*calcolo)(RunState&);
  // From Lire to Euro, the data files of the case with this code.
  void (*converti)(const WorkFolder&, const std::string& codice);
  // The fields of a data file of the case by their names, the closing line with them.
  CampiDelFile campi;
};

// In the order of the menus.
const std::vector<FeeCase>& FeeCases();
const FeeCase* FindFeeCase(std::string_view code);

// The note of a case in one currency.
struct NotaDiCaso {
  std::string codice;
  bool lire = false;
};
// The note whose report has this file name, in capitals or not; nothing where it is none.
std::optional<NotaDiCaso> NotaDelReport(std::string_view nome);

}  // namespace orm
