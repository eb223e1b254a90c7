#include "tariff/files/case_files.h"

namespace orm {

NomiFile NomiDiCaso(const std::string& codice, bool modoLire) {
  const std::string stem = "_" + codice + (modoLire ? "" : "_E");
  return {"INT" + stem + ".DAP", "INP" + stem + ".DAP", "OUT" + stem + ".DOC"};
}

}  // namespace orm
