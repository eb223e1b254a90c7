// Looking up the tables of the tariff.
#include "tariff/law/tariff_tables.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/law/table_2001.h"
#include "tariff/law/table_a.h"
#include "tariff/law/table_b.h"
#include "tariff/law/table_c.h"
#include "tariff/money.h"

namespace orm {
namespace {

// Rise of the percentages from one decree to the next. Beyond the end of the tables the last decree
// brought none. There is no further one: a later period comes to 0.
using Coefficienti = std::array<double, 5>;
constexpr Coefficienti kCoefficienti = {1.15, 1.15, 1.2, 1.2, 0};
constexpr Coefficienti kCoefficientiOltre = {1.15, 1.15, 1.2, 1.0, 0};

double ProdottoFinoA(int periodo, const Coefficienti& coefficienti) {
  double prodotto = 1;
  const int fattori = std::clamp(periodo - 1, 0, static_cast<int>(coefficienti.size()));
  for (int i = 0; i < fattori; ++i) prodotto *= coefficienti[static_cast<std::size_t>(i)];
  return prodotto;
}

// Steps of a table with index 1 for the first; element 0 is not used.
template <std::size_t N>
using Passi = std::array<double, N + 1>;

// The first step, but for the last one, that is not below the amount; otherwise the last.
template <std::size_t N>
std::size_t PassoDi(const std::array<double, N>& importi, double importo) {
  std::size_t i = 1;
  while (i < N - 1 && importo > importi[i]) ++i;
  if (i == 1)
    throw RuntimeFailure("L'importo " + NumberText(importo) + " non ha posto nella tabella.");
  return i;
}

bool SenzaCategorie(std::string_view classe) { return classe == "5" || classe == "8"; }

std::string Chiave(std::string_view classe, std::string_view categoria) {
  std::string chiave(classe);
  if (!SenzaCategorie(classe)) chiave += categoria;
  return chiave;
}

template <class Riga>
const Riga* Cerca(std::span<const Riga> tabella, std::string_view classe,
                  std::string_view categoria) {
  const auto riga = std::ranges::find(tabella, Chiave(classe, categoria), &Riga::chiave);
  return riga == tabella.end() ? nullptr : &*riga;
}

Passi<30> ImportiTabellaA() {
  Passi<30> X{};
  std::ranges::copy(kImportiTabellaA, X.begin() + 2);
  X[30] = X[29] + 1;
  return X;
}

Passi<30> PercentualiTabellaA(std::string_view classe, std::string_view categoria) {
  Passi<30> T{};
  if (const auto* riga = Cerca<RigaTabellaA>(kTabellaA, classe, categoria)) {
    std::ranges::copy(riga->percentuali, T.begin() + 2);
    T[30] = T[29];
  }
  return T;
}

double LireIntere(double euro) { return RoundOnText(euro * kLirePerEuro, 0); }

// The amount that the curve of 2001 takes for x, nothing in the two gaps.
std::optional<double> ImportoSullaCurva(double x, bool classe5) {
  if (x <= 50000000) return 50000000;
  if (x < 50000001) return std::nullopt;
  if (x <= 1000000000) return x;
  if (x < 1000000001) return std::nullopt;
  if (classe5) return 1000000000;
  return std::min(x, 100000000000.0);
}

}  // namespace

void PercentualeTabellaA(double& importo, int periodo, std::string_view classe,
                         std::string_view categoria, double& percentuale) {
  importo = std::fabs(importo);
  const double x = importo;
  const Passi<30> X = ImportiTabellaA();
  const Passi<30> T = PercentualiTabellaA(classe, categoria);
  const std::size_t i = PassoDi(X, x);
  if (i == 30) {
    percentuale = ProdottoFinoA(periodo, kCoefficientiOltre) * T[30];
    return;
  }
  const double c = ProdottoFinoA(periodo, kCoefficienti);
  const double da = T[i - 1] * c, a = T[i] * c;
  percentuale = da - (da - a) * (x - X[i - 1]) / (X[i] - X[i - 1]);
}

void PercentualeTabellaADaEuro(double importo, int periodo, std::string_view classe,
                               std::string_view categoria, double& percentuale) {
  double lire = LireIntere(importo);
  PercentualeTabellaA(lire, periodo, classe, categoria, percentuale);
}

void PercentualeTabellaNuova(double& importo, std::string_view classe, std::string_view categoria,
                             double& percentuale) {
  importo = std::fabs(importo);
  const auto X = ImportoSullaCurva(importo, classe == "5");
  const auto* curva = Cerca<CurvaTariffa>(kTabellaNuova, classe, categoria);
  if (X && curva) percentuale = std::pow(10, curva->p) * std::pow(*X, curva->b) + curva->q;
}

void PercentualeTabellaNuovaDaEuro(double importo, std::string_view classe,
                                   std::string_view categoria, double& percentuale) {
  double lire = LireIntere(importo);
  PercentualeTabellaNuova(lire, classe, categoria, percentuale);
}

void PercentualeTabellaContabilita(int periodo, double importo, double& percentuale) {
  if (importo == 0) {
    percentuale = 0;
    return;
  }
  Passi<21> X{}, T{};
  std::ranges::transform(kTabellaC, X.begin() + 1, &PassoTabellaC::importo);
  std::ranges::transform(kTabellaC, T.begin() + 1, &PassoTabellaC::percentuale);
  const std::size_t i = PassoDi(X, importo);
  const double p = T[i - 1] - (T[i - 1] - T[i]) * (importo - X[i - 1]) / (X[i] - X[i - 1]);
  const bool entro = importo <= 5000000001 || periodo < 5;
  percentuale = p * ProdottoFinoA(periodo, entro ? kCoefficienti : kCoefficientiOltre);
}

void TabellaBAliquote(std::string_view classe, std::string_view categoria,
                      const Aliquote& selezione, Aliquote& aliquote, double& sommaProgettazione,
                      double& sommaDirezione) {
  const auto riga = std::ranges::find_if(kTabellaB, [&](const RigaTabellaB& r) {
    const bool tutte = r.categorie.empty();
    return classe.size() == 1 && r.classi.find(classe) != std::string_view::npos &&
           (tutte ||
            (categoria.size() == 1 && r.categorie.find(categoria) != std::string_view::npos));
  });
  if (riga != kTabellaB.end()) std::ranges::copy(riga->aliquote, aliquote.begin() + 1);
  sommaProgettazione = 0;
  for (std::size_t i = 1; i <= 6; ++i) sommaProgettazione += selezione[i] * aliquote[i];
  sommaDirezione = 0;
  for (std::size_t i = 7; i <= 10; ++i) sommaDirezione += selezione[i] * aliquote[i];
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

void StringaPercentualeTabellaA(double& importo, int periodo, std::string_view classe,
                                std::string_view categoria, const Criteri& criteri,
                                double& percentuale, std::string& testo) {
  if (importo == 0) {
    percentuale = 0;
    testo = "0 %";
    return;
  }
  PercentualeTabellaA(importo, periodo, classe, categoria, percentuale);
  int decimali = 0;
  DecimaliPercentuale(importo, decimali, criteri.DecimaliTabelle);
  testo = FormattaNumero(percentuale, decimali) + "%";
}

std::string NomePeriodoTariffario(int periodo) {
  switch (periodo) {
    case 1:
      return "D.M. 25-febbraio-1965";
    case 2:
      return "D.M. 18-novembre-1971";
    case 3:
      return "D.M. 13-aprile-1976";
    case 4:
      return "D.M. 29-giugno-1981";
    case 5:
      return "D.M. 11-giugno-1987";
    case 6:
      return "D.M. 4-aprile-2001 ";
    default:
      return "D.M. xx-yyyyy-zzzz";
  }
}

std::string NomePeriodoTariffarioEsteso(int periodo) {
  switch (std::min(periodo, 5)) {
    case 1:
      return "D.M. 25-febbraio-1965  dal 18-03-1965 al 18-12-1971";
    case 2:
      return "D.M. 18-novembre-1971  dal 19-12-1971 al 05-05-1976";
    case 3:
      return "D.M. 13-aprile-1976    dal 06-05-1976 al 18-07-1981";
    case 4:
      return "D.M. 29-giugno-1981    dal 19-07-1981 al 30-06-1987";
    case 5:
      return "D.M. 11-giugno-1987    dall' 01-07-1987 a  oggi";
    default:
      return "";
  }
}

std::string CoefficienteInStringa(double coefficiente) {
  for (const double noto : {0.7, 1.2, 1.1, 1.4})
    if (coefficiente == noto) return FormattaCopia(noto, -2);
  return "1,00";
}

std::string StringaClasseCategoria(std::string_view classe, std::string_view categoria) {
  std::string testo(classe);
  if (!SenzaCategorie(classe)) testo += "/" + std::string(categoria);
  return testo;
}

}  // namespace orm
