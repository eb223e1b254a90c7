#include "tariff/files/conversion.h"

#include "tariff/files/user_files.h"

namespace orm {

FileConversione FileDaConvertire(const std::string& codice) {
  return {NomiDiCaso(codice, true), NomiDiCaso(codice, false)};
}

void ScriviConversione(const WorkFolder& folder, const FileConversione& file,
                       const DataWriter& corpo, const Chiusura& chiusura) {
  const Intestazione intestazione = LeggiIntestazione(folder, file.lire.FileInt);
  ScriviIntestazione(folder, file.euro.FileInt, intestazione);
  ScriviParcella(folder, file.euro.FileInp, corpo, chiusura);
}

}  // namespace orm
