// The professional's data and the header of a fee note, with the fields of their files.
#pragma once

#include <string>

#include "runtime/data_file.h"

namespace orm {

// Fourteen texts, one a line. A new installation knows the Order's province and the profession.
struct DatiProfessionista {
  std::string Nome, Indirizzo, Cap, Citta, Provincia, Telefono, Fax, Email, CodiceFiscale,
      PartitaIva;
  std::string Ordine = "CATANZARO";
  std::string NumeroIscrizione, DataIscrizione;
  std::string Professione = "Ingegnere";  // or "Architetto"
};

template <class Archive>
void Campi(Archive& file, DatiProfessionista& dati) {
  file.Line(Field("Cognome e Nome", dati.Nome));
  file.Line(Field("Indirizzo", dati.Indirizzo));
  file.Line(Field("Cap", dati.Cap));
  file.Line(Field("Citta'", dati.Citta));
  file.Line(Field("Provincia", dati.Provincia));
  file.Line(Field("Tel.", dati.Telefono));
  file.Line(Field("FAX", dati.Fax));
  file.Line(Field("E-MAIL", dati.Email));
  file.Line(Field("Codice Fiscale", dati.CodiceFiscale));
  file.Line(Field("PART. I.V.A.", dati.PartitaIva));
  file.Line(Field("Ordine di appartenenza", dati.Ordine));
  file.Line(Field("N° di Iscrizione", dati.NumeroIscrizione));
  file.Line(Field("Data di iscrizione", dati.DataIscrizione));
  file.Line(Field("Professione", dati.Professione));
}

// "Dott. Arch. " or "Dott. Ing. ", by the first letter of the profession.
inline std::string TitoloDi(const DatiProfessionista& dati) {
  return dati.Professione.starts_with('A') ? "Dott. Arch. " : "Dott. Ing. ";
}

// The header of a fee note.
struct Intestazione {
  std::string Committente;  // who owes the fee
  std::string Oggetto;      // object of the commission
  std::string Documenti;    // commission documents
  std::string Note;
};

template <class Archive>
void Campi(Archive& file, Intestazione& dati) {
  file.Line(Field("COMMITTENTE", dati.Committente));
  file.Line(Field("OGGETTO", dati.Oggetto));
  file.Line(Field("DOCUMENTI DI INCARICO", dati.Documenti));
  file.Line(Field("NOTE", dati.Note));
}

}  // namespace orm
