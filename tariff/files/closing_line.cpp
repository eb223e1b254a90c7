#include "tariff/files/closing_line.h"

namespace orm {

void ScriviParcella(const WorkFolder& folder, const std::string& nomeFile, const DataWriter& corpo,
                    Chiusura chiusura) {
  DataWriter file = corpo;
  CampiChiusura(file, chiusura);
  file.Replace(folder, nomeFile);
}

}  // namespace orm
