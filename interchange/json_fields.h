// The fields of a data file into JSON, and out of it.
#pragma once

#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tariff/files/field_list.h"

namespace orm {

using Json = nlohmann::ordered_json;

// How the fields of a file stand in JSON: all in one object, or an object for each line in a list,
// where lines repeat and with them the names.
enum class FormaCampi { Oggetto, Linee };

// A number without the ".0" that a whole one would get.
Json NumeroInJson(double numero);

Json InJson(const std::vector<CampoLetto>& campi, FormaCampi forma);

// A field that is missing, unknown or of another kind is a RuntimeFailure whose field is the place:
// "dati, linea 3, ImportoProgetto".
class CampiDaJson : public FieldSource {
 public:
  // `valore` outlives this; `dove` is its name.
  CampiDaJson(const Json& valore, std::string dove, FormaCampi forma);
  // After the last field: refuses what nothing has asked for.
  void EsigiFine();
  // The place of a field of the line that was read last, or of line `linea` where it is known.
  std::string Posto(std::string_view campo, int linea = 0) const;

 private:
  const Json& Prendi(const char* nome);
  double Numero(const char* nome, double minimo, double massimo);
  template <class T>
  void Intero(Field<T> campo);
  void RespingiAltri() const;
  [[noreturn]] void Respingi(std::string_view campo, const std::string& motivo) const;

  void BeginLine() override;
  void EndLine() override;
  void Give(Field<std::string> campo) override;
  void Give(Field<double> campo) override;
  void Give(Field<std::int16_t> campo) override;
  void Give(Field<std::int32_t> campo) override;
  void Give(Field<std::uint8_t> campo) override;
  void Give(Field<bool> campo) override;
  void Give(CountField campo) override;

  const Json& valore_;
  std::string dove_;
  FormaCampi forma_;
  std::size_t linea_ = 0;        // from 1
  std::set<std::string> letti_;  // of the object that is read
};

}  // namespace orm
