#include "structures/steel_profiles.h"

#include <algorithm>

#include "runtime/numbers.h"

namespace orm {

Profilo ProfiloNP(std::string_view h) {
  const auto found = std::find_if(kProfiliNP.begin(), kProfiliNP.end(),
                                  [&](const VoceProfilo& voce) { return NumberText(voce.h) == h; });
  return found == kProfiliNP.end() ? Profilo{1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0} : found->profilo;
}

double AltezzaProfilo(std::string_view h) { return ParseNumber(h).value_or(0); }

bool ModuloInDifetto(std::string_view h) {
  const Profilo profilo = ProfiloNP(h);
  return profilo.W < 0.9 * profilo.J / (AltezzaProfilo(h) / 20);
}

std::vector<std::string> AltezzeNP() {
  std::vector<std::string> altezze;
  for (const VoceProfilo& voce : kProfiliNP) altezze.push_back(NumberText(voce.h));
  return altezze;
}

Tensioni TensioniAcciaio(std::string_view grado) {
  const auto found = std::find_if(kGradiAcciaio.begin(), kGradiAcciaio.end(),
                                  [&](const GradoAcciaio& voce) { return voce.nome == grado; });
  return found == kGradiAcciaio.end() ? Tensioni{1.0, 1.0} : found->ammesse;
}

std::vector<std::string> NomiGradiAcciaio() {
  std::vector<std::string> nomi;
  for (const GradoAcciaio& voce : kGradiAcciaio) nomi.emplace_back(voce.nome);
  return nomi;
}

ContiAcciaio TensioniNelProfilo(std::string_view h, double momento, double taglio) {
  const Profilo profilo = ProfiloNP(h);
  const Conto anima = Conto(AltezzaProfilo(h)) - Conto(2) * profilo.tf;
  return {Conto(momento) * 100 / profilo.W, Conto(taglio) * 100 / (anima * profilo.tw)};
}

}  // namespace orm
