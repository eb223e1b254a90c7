#include "tariff/percentages.h"

#include <array>

#include "runtime/numbers.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"

namespace orm {

double LireDiTabella(double euro) { return RoundOnText(euro * kLirePerEuro, 0); }

void PercentualeTabellaADaEuro(double importo, int periodo, std::string_view classe,
                               std::string_view categoria, double& percentuale) {
  double lire = LireDiTabella(importo);
  PercentualeTabellaA(lire, periodo, classe, categoria, percentuale);
}

void PercentualeTabellaNuovaDaEuro(double importo, std::string_view classe,
                                   std::string_view categoria, double& percentuale) {
  double lire = LireDiTabella(importo);
  PercentualeTabellaNuova(lire, classe, categoria, percentuale);
}

void DecimaliPercentuale(double importo, int& decimali, int criterio) {
  const auto fra = [importo](double da, double a) { return importo >= da && importo <= a; };
  if (criterio != 0)
    decimali = criterio;
  else if (importo < 100000)
    decimali = 3;
  else if (fra(100000, 1000000))
    decimali = 4;
  else if (fra(1000001, 10000000))
    decimali = 5;
  else if (fra(10000001, 500000000))
    decimali = 6;
  else if (fra(500000001, 1000000000))
    decimali = 7;
  else if (fra(1000000001, 100000000000))
    decimali = 8;
  else if (importo > 10000000001)  // a zero short of the row before, which has taken what it lacks
    decimali = 9;
}

std::string MotivoDecimali(int decimali, int criterio) {
  constexpr std::array<const char*, 10> kImporti = {"fra una fascia e l'altra",
                                                    "",
                                                    "",
                                                    "sotto L. 100.000",
                                                    "da L. 100.000 a L. 1.000.000",
                                                    "da L. 1.000.001 a L. 10.000.000",
                                                    "da L. 10.000.001 a L. 500.000.000",
                                                    "da L. 500.000.001 a L. 1.000.000.000",
                                                    "da L. 1.000.000.001 a L. 100.000.000.000",
                                                    "oltre L. 100.000.000.000"};
  if (criterio != 0) return "Sono i decimali scelti nei criteri di calcolo";
  return "Sono i decimali di un importo " +
         std::string(kImporti[static_cast<std::size_t>(decimali)]);
}

void StringaPercentualeTabellaA(double& importo, int periodo, std::string_view classe,
                                std::string_view categoria, const Criteri& criteri,
                                double& percentuale, std::string& testo, LetturaTabella* lettura) {
  if (importo == 0) {
    percentuale = 0;
    testo = "0 %";
    return;
  }
  PercentualeTabellaA(importo, periodo, classe, categoria, percentuale, lettura);
  int decimali = 0;
  DecimaliPercentuale(importo, decimali, criteri.DecimaliTabelle);
  testo = FormattaNumero(percentuale, decimali) + "%";
}

}  // namespace orm
