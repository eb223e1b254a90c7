// The data file of a note as the list of its fields by their names: for what is not one of the
// files itself.
#pragma once

#include <string>
#include <vector>

#include "tariff/files/closing_line.h"

namespace orm {

struct CampoLetto {
  enum class Tipo { Testo, Numero, Importo, Conto, Booleano };
  std::string nome;
  Tipo tipo = Tipo::Testo;
  std::string testo;  // of a text
  double numero = 0;  // of all others; a Boolean is 0 or 1
};

// An archive that passes over the description of a file.
class FieldList {
 public:
  template <class... F>
  void Line(F... fields) {
    (Take(fields), ...);
  }
  const std::vector<CampoLetto>& All() const { return all_; }

 private:
  using Tipo = CampoLetto::Tipo;
  void Take(Field<std::string> field) { all_.push_back({field.name, Tipo::Testo, field.value, 0}); }
  void Take(Field<bool> field) {
    all_.push_back({field.name, Tipo::Booleano, {}, field.value ? 1.0 : 0.0});
  }
  void Take(MoneyField field) { Add(field, Tipo::Importo); }
  void Take(CountField field) { Add(field, Tipo::Conto); }
  template <class T>
  void Take(Field<T> field) {
    Add(field, Tipo::Numero);
  }
  template <class F>
  void Add(const F& field, Tipo tipo) {
    all_.push_back({field.name, tipo, {}, static_cast<double>(field.value)});
  }
  std::vector<CampoLetto> all_;
};

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
