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
  int linea = 0;      // of the file, from 1
};

class FieldList {
 public:
  template <class... F>
  void Line(F... fields) {
    ++linea_;
    (Take(fields), ...);
  }
  const std::vector<CampoLetto>& All() const { return all_; }

 private:
  using Tipo = CampoLetto::Tipo;
  void Take(Field<std::string> field) {
    all_.push_back({field.name, Tipo::Testo, field.value, 0, linea_});
  }
  void Take(Field<bool> field) {
    all_.push_back({field.name, Tipo::Booleano, {}, field.value ? 1.0 : 0.0, linea_});
  }
  void Take(MoneyField field) { Add(field, Tipo::Importo); }
  void Take(CountField field) { Add(field, Tipo::Conto); }
  template <class T>
  void Take(Field<T> field) {
    Add(field, Tipo::Numero);
  }
  template <class F>
  void Add(const F& field, Tipo tipo) {
    all_.push_back({field.name, tipo, {}, static_cast<double>(field.value), linea_});
  }
  std::vector<CampoLetto> all_;
  int linea_ = 0;
};

// Gives the fields of a file their values from elsewhere: an archive that is known only while the
// program runs.
class FieldSource {
 public:
  virtual ~FieldSource() = default;

  template <class... F>
  void Line(F... fields) {
    BeginLine();
    (Give(fields), ...);
    EndLine();
  }

 private:
  virtual void BeginLine() = 0;
  virtual void EndLine() = 0;
  virtual void Give(Field<std::string>) = 0;
  virtual void Give(Field<double>) = 0;
  virtual void Give(Field<std::int16_t>) = 0;
  virtual void Give(Field<std::int32_t>) = 0;
  virtual void Give(Field<std::uint8_t>) = 0;
  virtual void Give(Field<bool>) = 0;
  virtual void Give(CountField) = 0;
};

}  // namespace orm
