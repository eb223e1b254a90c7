#include "cases/geo/config.h"

#include <algorithm>

#include "runtime/data_file.h"

namespace orm {
namespace {

constexpr int kPassiMassimi = 100;
constexpr std::size_t kPerRiga = 3;

class LettoreGeo {
 public:
  explicit LettoreGeo(const WorkFolder& folder) : file(folder, kFileGeo) {}

  void LeggiTestata(TabelleGeo& tabelle) {
    for (std::size_t i = 0; i < kPeriodiGeo; ++i) {
      tabelle.NomePeriodo[i] = file.Text("nome del periodo");
      SaltaNota();
      tabelle.NotaPeriodo[i] = RigaIgnorata;
    }
    const int n = file.Count("numero degli scaglioni", kPassiMassimi);
    if (n < 2) file.Fail("numero degli scaglioni", "Gli scaglioni devono essere almeno due.");
    SaltaNota();
    double precedente = -1;  // a table may begin with 0
    for (int i = 0; i < n; ++i) {
      const double passo = file.Number("importo");
      if (passo < 0) file.Fail("importo", "Il numero non può essere negativo.");
      if (passo <= precedente)
        file.Fail("importo", "Gli importi degli scaglioni devono essere crescenti.");
      SaltaNota();
      tabelle.Passo.push_back(precedente = passo);
    }
  }

  // The last line holds what is left.
  std::vector<double> LeggiTabella(std::size_t n) {
    std::vector<double> Y{Percentuale()};
    SaltaNota();
    while (Y.size() < n) {
      for (std::size_t i = 0; i < kPerRiga && Y.size() < n; ++i) Y.push_back(Percentuale());
      SaltaNota();
    }
    return Y;
  }

 private:
  double Percentuale() {
    const double valore = file.Number("percentuale");
    if (valore < 0) file.Fail("percentuale", "Il numero non può essere negativo.");
    return valore;
  }
  void SaltaNota() { RigaIgnorata = file.Text("nota"); }
  DataReader file;
  std::string RigaIgnorata;
};

}  // namespace

double TabelleGeo::Percentuale(std::size_t sottoclasse, double lire,
                               Interpolazione* lettura) const {
  std::vector<double> tabella = Y.at(sottoclasse);
  tabella[0] = tabella[1];
  std::size_t i = 0;
  while (i < Passo.size() - 1 && Passo[i] <= lire) ++i;
  const std::size_t sotto = i == 0 ? 0 : i - 1;
  if (lettura != nullptr) *lettura = {lire, Passo[sotto], Passo[i], tabella[sotto], tabella[i]};
  if (i == 0) return tabella[0];
  return std::max(0.0, tabella[i - 1] - (tabella[i - 1] - tabella[i]) * (lire - Passo[i - 1]) /
                                            (Passo[i] - Passo[i - 1]));
}

TabelleGeo LeggiTabelleGeo(const WorkFolder& folder, int periodo) {
  LettoreGeo file(folder);
  TabelleGeo tabelle;
  file.LeggiTestata(tabelle);
  for (; periodo > 0; --periodo)
    for (std::vector<double>& tabella : tabelle.Y)
      tabella = file.LeggiTabella(tabelle.Passo.size());
  return tabelle;
}

}  // namespace orm
