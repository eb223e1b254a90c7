// The files of the professional's data and of the header of a fee note.
#include "tariff/files/user_files.h"

namespace orm {
namespace {

template <class Dati>
Dati Leggi(const WorkFolder& folder, const std::string& nomeFile) {
  DataReader file(folder, nomeFile);
  Dati dati;
  Campi(file, dati);
  file.ExpectEnd();
  return dati;
}

template <class Dati>
void Scrivi(const WorkFolder& folder, const std::string& nomeFile, Dati& dati) {
  DataWriter file;
  Campi(file, dati);
  file.Replace(folder, nomeFile);
}

}  // namespace

DatiProfessionista LeggiDatiProfessionista(const WorkFolder& folder) {
  return Leggi<DatiProfessionista>(folder, kFileUtente);
}

void ScriviDatiProfessionista(const WorkFolder& folder, DatiProfessionista dati) {
  Scrivi(folder, kFileUtente, dati);
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
  return Leggi<Intestazione>(folder, nomeFile);
}

void ScriviIntestazione(const WorkFolder& folder, const std::string& nomeFile, Intestazione dati) {
  Scrivi(folder, nomeFile, dati);
}

}  // namespace orm
