#include "structures/loads/hollow_tiles.h"

#include <cstddef>

#include "runtime/numbers.h"

namespace orm {

std::vector<Tavellone> TuttiITavelloni() {
  std::vector<Tavellone> tutti;
  for (const double lunghezza : kLunghezzeTavelloni)
    for (const PesoTavellone& tipo : kPesiTavelloni)
      tutti.push_back({lunghezza, tipo.altezza, tipo.peso});
  return tutti;
}

std::string NomeTavellone(const Tavellone& tavellone) {
  return NumberText(tavellone.lunghezza) + " x " + NumberText(tavellone.altezza);
}

std::vector<std::string> NomiTavelloni() {
  std::vector<std::string> nomi;
  for (const Tavellone& tavellone : TuttiITavelloni()) nomi.push_back(NomeTavellone(tavellone));
  return nomi;
}

Tavellone TavelloneDiLista(int indice) {
  const std::vector<Tavellone> tutti = TuttiITavelloni();
  const auto posto = static_cast<std::size_t>(indice);
  return indice >= 0 && posto < tutti.size() ? tutti[posto] : Tavellone{};
}

}  // namespace orm
