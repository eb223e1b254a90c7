// The data file of a note as the list of its fields.
#pragma once

#include <string>
#include <vector>

#include "runtime/field_list.h"
#include "tariff/files/closing_line.h"

namespace orm {

// The body of the case, then the closing line. A file that cannot be read is a RuntimeFailure.
template <class Dati>
std::vector<CampoLetto> LeggiCampi(const WorkFolder& folder, const std::string& nomeFile) {
  Dati dati;
  Chiusura chiusura;
  LeggiFileDati(folder, nomeFile, dati, chiusura);
  FieldList campi;
  Campi(campi, dati);
  CampiChiusura(campi, chiusura);
  return campi.All();
}

}  // namespace orm
