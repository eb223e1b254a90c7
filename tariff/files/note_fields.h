// The files of a note for who does not know its case: their fields as a list, and a file out of
// fields from elsewhere.
#pragma once

#include <string>
#include <vector>

#include "runtime/failure.h"
#include "tariff/files/closing_line.h"
#include "tariff/files/field_list.h"

namespace orm {

// A kind of file by its description. What cannot be read or made is a RuntimeFailure.
struct CampiDelFile {
  std::vector<CampoLetto> (*leggi)(DataReader& file);
  void (*scrivi)(FieldSource& campi, DataWriter& file);

  // The fields of a file of the folder.
  std::vector<CampoLetto> operator()(const WorkFolder& folder, const std::string& nome) const {
    return Leggi(nome, folder.Read(nome));
  }
  std::vector<CampoLetto> Leggi(const std::string& nome, std::string_view bytes) const {
    DataReader file = DataReader::OfBytes(nome, bytes);
    try {
      return leggi(file);
    } catch (RuntimeFailure& failure) {
      throw failure.AtFile(nome);  // one of the case's own checks does not know it
    }
  }
};

// Of a file that holds one record.
template <class Dati>
inline constexpr CampiDelFile kCampi = {[](DataReader& file) {
                                          Dati dati;
                                          Campi(file, dati);
                                          file.ExpectEnd();
                                          FieldList elenco;
                                          Campi(elenco, dati);
                                          return elenco.All();
                                        },
                                        [](FieldSource& campi, DataWriter& file) {
                                          Dati dati;
                                          Campi(campi, dati);
                                          Campi(file, dati);
                                        }};

// The body of a case, then the closing line.
template <class Dati>
struct CorpoEChiusura {
  Dati corpo;
  Chiusura chiusura;
};

template <class Archive, class Dati>
void Campi(Archive& file, CorpoEChiusura<Dati>& nota) {
  Campi(file, nota.corpo);
  CampiChiusura(file, nota.chiusura);
}

template <class Dati>
inline constexpr CampiDelFile kCampiNota = kCampi<CorpoEChiusura<Dati>>;

}  // namespace orm
