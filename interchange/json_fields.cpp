#include "interchange/json_fields.h"

#include <cmath>
#include <limits>
#include <utility>

#include "interchange/json_text.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"

namespace orm {

Json NumeroInJson(double numero) {
  if (std::fabs(numero) < 1e15 && numero == Fix(numero)) return static_cast<std::int64_t>(numero);
  return numero;
}

namespace {

Json Valore(const CampoLetto& campo) {
  switch (campo.tipo) {
    case CampoLetto::Tipo::Testo:
      return campo.testo;
    case CampoLetto::Tipo::Booleano:
      return campo.numero != 0;
    default:
      return NumeroInJson(campo.numero);
  }
}

}  // namespace

Json InJson(const std::vector<CampoLetto>& campi, FormaCampi forma) {
  Json tutti = forma == FormaCampi::Linee ? Json::array() : Json::object();
  for (const CampoLetto& campo : campi) {
    while (forma == FormaCampi::Linee && tutti.size() < static_cast<std::size_t>(campo.linea))
      tutti.push_back(Json::object());
    (forma == FormaCampi::Linee ? tutti.back() : tutti)[campo.nome] = Valore(campo);
  }
  return tutti;
}

CampiDaJson::CampiDaJson(const Json& valore, std::string dove, FormaCampi forma)
    : valore_(valore), dove_(std::move(dove)), forma_(forma) {
  if (forma == FormaCampi::Linee ? !valore.is_array() : !valore.is_object())
    throw RuntimeFailure(forma == FormaCampi::Linee ? AlPostoDi("di un elenco", valore)
                                                    : AlPostoDi("di un oggetto", valore))
        .AtField(dove_);
}

std::string CampiDaJson::Posto(std::string_view campo, int linea) const {
  std::string posto = dove_;
  if (forma_ == FormaCampi::Linee)
    posto += ", linea " + NumberText(linea > 0 ? linea : static_cast<double>(linea_));
  return campo.empty() ? posto : posto + ", " + std::string(campo);
}

void CampiDaJson::Respingi(std::string_view campo, const std::string& motivo) const {
  throw RuntimeFailure(motivo).AtField(Posto(campo));
}

void CampiDaJson::BeginLine() {
  if (forma_ == FormaCampi::Oggetto) return;
  letti_.clear();
  ++linea_;
  if (linea_ > valore_.size()) Respingi("", "L'elenco finisce prima di questa linea.");
  if (const Json& linea = valore_[linea_ - 1]; !linea.is_object())
    Respingi("", AlPostoDi("di un oggetto", linea));
}

void CampiDaJson::EndLine() {
  if (forma_ == FormaCampi::Linee) RespingiAltri();
}

void CampiDaJson::RespingiAltri() const {
  const Json& oggetto = forma_ == FormaCampi::Linee ? valore_[linea_ - 1] : valore_;
  for (const auto& [nome, valore] : oggetto.items())
    if (!letti_.contains(nome)) Respingi(nome, "Questo campo non è previsto.");
}

void CampiDaJson::EsigiFine() {
  if (forma_ == FormaCampi::Oggetto) return RespingiAltri();
  if (linea_++ < valore_.size()) Respingi("", "Questa linea non è prevista.");
}

const Json& CampiDaJson::Prendi(const char* nome) {
  const Json& oggetto = forma_ == FormaCampi::Linee ? valore_[linea_ - 1] : valore_;
  const auto trovato = oggetto.find(nome);
  if (trovato == oggetto.end()) Respingi(nome, "Manca questo campo.");
  letti_.insert(nome);
  return *trovato;
}

void CampiDaJson::Give(Field<std::string> campo) {
  const Json& valore = Prendi(campo.name);
  if (!valore.is_string()) Respingi(campo.name, AlPostoDi("di un testo", valore));
  campo.value = valore.get<std::string>();
}

void CampiDaJson::Give(Field<double> campo) {
  const Json& valore = Prendi(campo.name);
  if (!valore.is_number()) Respingi(campo.name, AlPostoDi("di un numero", valore));
  campo.value = valore.get<double>();
}

void CampiDaJson::Give(Field<bool> campo) {
  const Json& valore = Prendi(campo.name);
  if (!valore.is_boolean()) Respingi(campo.name, AlPostoDi("di true o false", valore));
  campo.value = valore.get<bool>();
}

template <class T>
void CampiDaJson::Intero(Field<T> campo) {
  double valore = 0;
  Give(Field<double>(campo.name, valore));
  if (valore != Fix(valore)) Respingi(campo.name, "Il numero deve essere intero.");
  if (valore < std::numeric_limits<T>::min() || valore > std::numeric_limits<T>::max())
    Respingi(campo.name, "Il numero è fuori dai limiti del campo (overflow).");
  campo.value = static_cast<T>(valore);
}

void CampiDaJson::Give(Field<std::int16_t> campo) { Intero(campo); }
void CampiDaJson::Give(Field<std::int32_t> campo) { Intero(campo); }
void CampiDaJson::Give(Field<std::uint8_t> campo) { Intero(campo); }

void CampiDaJson::Give(CountField campo) {
  Intero(Field<std::int16_t>(campo));
  if (campo.value < 0 || campo.value > campo.most)
    Respingi(campo.name,
             "Il numero di elementi deve essere fra 0 e " + NumberText(campo.most) + ".");
}

}  // namespace orm
