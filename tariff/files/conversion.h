// The stored data of a note in Lire become those of a note in Euro.
//
// There is one mechanism for all cases: an archive that passes over the description of a data file
// and brings each MoneyField to Euro, one by one, totals too; a total may miss the sum of its parts
// by cents. Percentages and counts stay.
#pragma once

#include "tariff/files/case_files.h"
#include "tariff/files/closing_line.h"
#include "tariff/money.h"

namespace orm {

class EuroConverter {
 public:
  template <class... F>
  void Line(F... fields) {
    (Convert(fields), ...);
  }

 private:
  template <class T>
  void Convert(Field<T>) {}
  void Convert(MoneyField field) { field.value = LireInEuro(field.value); }
};

// Replaces the Euro files of a case by its converted Lire files, which stay as they are. Everything
// is read before anything is written: a damaged or missing Lire file is a RuntimeFailure and leaves
// the Euro files as they were.
struct FileConversione {
  NomiFile lire, euro;
};
FileConversione FileDaConvertire(const std::string& codice);
void ScriviConversione(const WorkFolder& folder, const FileConversione& file,
                       const DataWriter& corpo, const Chiusura& chiusura);

template <class Dati>
void ConvertiParcella(const WorkFolder& folder, const std::string& codice) {
  const FileConversione file = FileDaConvertire(codice);
  Dati dati;
  Chiusura chiusura;
  LeggiFileDati(folder, file.lire.FileInp, dati, chiusura);
  EuroConverter inEuro;
  Campi(inEuro, dati);
  CampiChiusura(inEuro, chiusura);
  DataWriter corpo;
  Campi(corpo, dati);
  ScriviConversione(folder, file, corpo, chiusura);
}

}  // namespace orm
