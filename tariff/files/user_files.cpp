// The files of the professional's data and of the header of a fee note.
#include "tariff/files/user_files.h"

#include <utility>

namespace orm {

DatiProfessionista LeggiDatiProfessionista(const WorkFolder& folder) {
  return LeggiFile<DatiProfessionista>(folder, kFileUtente);
}

void ScriviDatiProfessionista(const WorkFolder& folder, DatiProfessionista dati) {
  ScriviFile(folder, kFileUtente, std::move(dati));
}

void ScriviUtentePredefinito(const WorkFolder& folder) {
  DatiProfessionista dati;
  DataWriter file;
  for (int riga = 1; riga <= 10; ++riga) file.Line();
  file.Line(Field("Ordine di appartenenza", dati.Ordine),
            Field("N° di Iscrizione", dati.NumeroIscrizione),
            Field("Data di iscrizione", dati.DataIscrizione),
            Field("Professione", dati.Professione));
  file.Replace(folder, kFileUtente);
}

Intestazione LeggiIntestazione(const WorkFolder& folder, const std::string& nomeFile) {
  return LeggiFile<Intestazione>(folder, nomeFile);
}

void ScriviIntestazione(const WorkFolder& folder, const std::string& nomeFile, Intestazione dati) {
  ScriviFile(folder, nomeFile, std::move(dati));
}

}  // namespace orm
