#include "runtime/explanation/steps.h"

#include <algorithm>
#include <utility>

#include "runtime/numbers.h"

namespace orm {

Conto Annota(Catena& passi, std::string regola, const Conto& conto, std::string unita) {
  passi.push_back({.regola = std::move(regola),
                   .conto = conto,
                   .risultato = conto.Valore(),
                   .unita = std::move(unita)});
  return conto.Valore();
}

Passaggio PassoDiParole(std::string regola) {
  return {.regola = std::move(regola), .conto = "", .risultato = {}};
}

std::string TabellaPersonale(std::string_view file, std::string_view nota) {
  std::string testo = "tabella " + std::string(file) + " della cartella";
  if (!nota.empty()) testo += " (\"" + std::string(nota) + "\")";
  return testo;
}

Passaggio PassoMostrato(std::string regola, std::string conto, double risultato, std::string unita,
                        const char* modello) {
  const std::string cifra = FormatPattern(risultato, modello);
  std::string numero = cifra;
  std::erase(numero, '.');
  std::ranges::replace(numero, ',', '.');
  const auto virgola = cifra.find(',');
  const int decimali =
      virgola == std::string::npos ? 0 : static_cast<int>(cifra.size() - virgola - 1);
  return {.regola = std::move(regola),
          .conto = std::move(conto),
          .risultato = risultato,
          .unita = std::move(unita),
          .tagli = {{TipoTaglio::Arrotonda, decimali, risultato, ParseNumber(numero).value_or(0)}},
          .cifra = cifra};
}

}  // namespace orm
