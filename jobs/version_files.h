// Where header and data of a version of a note lie: in `storico`, or still in the job.
#pragma once

#include <string>

#include "jobs/note_versions.h"

namespace orm {

struct FileDiVersione {
  WorkFolder folder;
  std::string nome;
};

inline FileDiVersione FileDella(const std::string& cartella, const std::string& attuale,
                                const std::optional<Generazione>& generazione) {
  if (!generazione) return {WorkFolder(cartella), attuale};
  return {WorkFolder(cartella + "/" + kStorico), generazione->file};
}

inline FileDiVersione IntestazioneDi(const std::string& cartella, const ParcellaDelLavoro& parcella,
                                     const VersioneParcella& versione) {
  return FileDella(cartella, parcella.file.FileInt, versione.intestazione);
}
inline FileDiVersione DatiDi(const std::string& cartella, const ParcellaDelLavoro& parcella,
                             const VersioneParcella& versione) {
  return FileDella(cartella, parcella.file.FileInp, versione.dati);
}

}  // namespace orm
