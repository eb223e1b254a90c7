// The fields of a data file as a list, by their names: an archive that passes over the description
// of a file, for what is not one of the files itself.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "runtime/data_file.h"

namespace orm {

struct CampoLetto {
  enum class Tipo { Testo, Numero, Importo, Conto, Booleano };
  std::string nome;
  Tipo tipo = Tipo::Testo;
  std::string testo;  // of a text
  double numero = 0;  // of all others; a Boolean is 0 or 1
};

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

}  // namespace orm
