// The files of a fee case.
#pragma once

#include <string>

namespace orm {

struct NomiFile {
  std::string FileInt, FileInp, Report;
};

// Names of header, data and report file of a case; "_E" marks Euro.
NomiFile NomiDiCaso(const std::string& codice, bool modoLire);

}  // namespace orm
