#include "structures/truss_slab/lookup.h"

#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/money.h"

namespace orm {

double TensioneDiFerro(std::string_view tipo) {
  for (const TensioneFerro& ferro : kTensioniFerro)
    if (ferro.tipo == tipo) return ferro.sigma;
  return 1.0;
}

ParametriCls ParametriDiCls(std::string_view classe) {
  for (const ParametriCls& cls : kClassiCls)
    if (cls.classe == classe) return cls;
  return {};
}

std::vector<std::string> NomiClassiCls() {
  std::vector<std::string> nomi;
  for (const ParametriCls& cls : kClassiCls) nomi.emplace_back(cls.classe);
  return nomi;
}

double PesoLaterizio(std::string_view blocco) {
  const std::string altezza = Right(blocco, 2);
  for (const FiguraLaterizio& figura : kPesiLaterizio)
    if (figura.tipoS == blocco.starts_with('S') && figura.altezza == altezza) return figura.peso;
  return 1.0;
}

double AltezzaBlocco(std::string_view blocco) {
  return ParseNumber(blocco.substr(blocco.find_last_of(' ') + 1)).value_or(0);
}

double ParteDopoBarra(std::string_view testo) {
  const auto barra = testo.find('/');
  if (barra == std::string_view::npos) return 0;
  return ParseNumber(testo.substr(barra + 1)).value_or(0);
}

double PesoProprioSolaio(const ModuloSolaio& modulo, double solettina, std::string_view blocco) {
  const double h = AltezzaBlocco(blocco);
  const double peso = solettina * 25.0 + (h * modulo.laterizio * PesoLaterizio(blocco)) +
                      h * 2 * modulo.travetti * 0.25;
  return ArrotondaA5(peso, 0, 1);
}

bool AltezzaInsufficiente(double luce, double H) {
  return luce * 100.0 * kRapportoLuci / kRapportoLuceAltezza > H;
}

}  // namespace orm
