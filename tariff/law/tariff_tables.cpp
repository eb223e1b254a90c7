// Looking up the tables of the tariff.
#include "tariff/law/tariff_tables.h"

#include <algorithm>
#include <cmath>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "tariff/law/class_rows.h"
#include "tariff/law/table_a.h"
#include "tariff/law/table_b.h"
#include "tariff/law/table_c.h"
#include "tariff/law/table_curve_2001.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/table_services_2001.h"

namespace orm {
namespace {

// The rises up to a period's one, multiplied. A period beyond the last counts as that one.
constexpr double ProdottoFinoA(int periodo, double DecretoTariffario::*aumento) {
  double prodotto = 1;
  for (std::size_t i = 0; i < kDecreti.size() && static_cast<int>(i) < periodo; ++i)
    prodotto *= kDecreti[i].*aumento;
  return prodotto;
}

// The whole rises are the products of the single ones, but for the last binary digits.
static_assert([] {
  for (int periodo = 1; periodo <= static_cast<int>(kDecreti.size()); ++periodo) {
    const DecretoTariffario& d = kDecreti[static_cast<std::size_t>(periodo - 1)];
    const double scarto = ProdottoFinoA(periodo, &DecretoTariffario::aumento) - d.coefficiente;
    const double oltre =
        ProdottoFinoA(periodo, &DecretoTariffario::aumentoOltre) - d.coefficienteOltre;
    if (scarto * scarto > 1e-24 || oltre * oltre > 1e-24) return false;
  }
  return true;
}());

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

Passi<30> ImportiTabellaA() {
  Passi<30> X{};
  std::ranges::copy(kImportiTabellaA, X.begin() + 2);
  X[30] = X[29] + 1;
  return X;
}

Passi<30> PercentualiTabellaA(std::string_view classe, std::string_view categoria) {
  Passi<30> T{};
  if (const auto* riga = RigaPer(kTabellaA, classe, categoria)) {
    std::ranges::copy(riga->percentuali, T.begin() + 2);
    T[30] = T[29];
  }
  return T;
}

// The amount that the curve of 2001 takes for x, nothing in the two gaps.
std::optional<double> ImportoSullaCurva(double x, bool classe5) {
  if (x <= kCurvaDa) return kCurvaDa;
  if (x < kCurvaDa + 1) return std::nullopt;
  if (x <= kCurvaFinoClasse5) return x;
  if (x < kCurvaFinoClasse5 + 1) return std::nullopt;
  return std::min(x, classe5 ? kCurvaFinoClasse5 : kCurvaFino);
}

}  // namespace

void PercentualeTabellaA(double& importo, int periodo, std::string_view classe,
                         std::string_view categoria, double& percentuale, LetturaTabella* lettura) {
  importo = std::fabs(importo);
  const double x = importo;
  const Passi<30> X = ImportiTabellaA();
  const Passi<30> T = PercentualiTabellaA(classe, categoria);
  const std::size_t i = PassoDi(X, x);
  const bool ultima = i == 30;
  if (ultima) {
    percentuale = ProdottoFinoA(periodo, &DecretoTariffario::aumentoOltre) * T[30];
  } else {
    const double c = ProdottoFinoA(periodo, &DecretoTariffario::aumento);
    const double da = T[i - 1] * c, a = T[i] * c;
    percentuale = da - (da - a) * (x - X[i - 1]) / (X[i] - X[i - 1]);
  }
  if (lettura != nullptr)
    *lettura = {{x, X[i - 1], X[i], T[i - 1], T[i]}, ultima, ultima, percentuale};
}

void PercentualeTabellaNuova(double& importo, std::string_view classe, std::string_view categoria,
                             double& percentuale, LetturaCurva* lettura) {
  importo = std::fabs(importo);
  const auto X = ImportoSullaCurva(importo, classe == "5");
  const auto* curva = RigaPer(kTabellaNuova, classe, categoria);
  if (!X || !curva) return;
  percentuale = std::pow(10, curva->p) * std::pow(*X, curva->b) + curva->q;
  if (lettura != nullptr) *lettura = {*X, curva->b, curva->p, curva->q, true, percentuale};
}

void PercentualeTabellaContabilita(int periodo, double importo, double& percentuale,
                                   LetturaTabella* lettura) {
  if (importo == 0) {
    percentuale = 0;
    return;
  }
  Passi<21> X{}, T{};
  std::ranges::transform(kTabellaC, X.begin() + 1, &PassoTabellaC::importo);
  std::ranges::transform(kTabellaC, T.begin() + 1, &PassoTabellaC::percentuale);
  const std::size_t i = PassoDi(X, importo);
  const double p = T[i - 1] - (T[i - 1] - T[i]) * (importo - X[i - 1]) / (X[i] - X[i - 1]);
  const bool entro = importo <= kLimiteTabellaA + 1 || periodo < kPeriodo1987;
  percentuale = p * ProdottoFinoA(periodo, entro ? &DecretoTariffario::aumento
                                                 : &DecretoTariffario::aumentoOltre);
  if (lettura != nullptr)
    *lettura = {{importo, X[i - 1], X[i], T[i - 1], T[i]}, i == 21, !entro, percentuale};
}

Conto AumentiFinoA(int periodo, bool oltre) {
  Conto prodotto(1);
  bool primo = true;
  for (std::size_t i = 0; i < kDecreti.size() && static_cast<int>(i) < periodo; ++i) {
    const double aumento = oltre ? kDecreti[i].aumentoOltre : kDecreti[i].aumento;
    if (aumento == 1) continue;
    if (primo)
      prodotto = aumento;
    else
      prodotto *= aumento;
    primo = false;
  }
  return prodotto;
}

void TabellaBAliquote(std::string_view classe, std::string_view categoria,
                      const Aliquote& selezione, Aliquote& aliquote, Conto& sommaProgettazione,
                      Conto& sommaDirezione) {
  if (const RigaTabellaB* riga = RigaPer(kTabellaB, classe, categoria))
    std::ranges::copy(riga->aliquote, aliquote.begin() + 1);
  const auto somma = [&](Conto totale, std::size_t primo, std::size_t ultimo) {
    for (std::size_t i = primo; i <= ultimo; ++i)
      if (const double quota = selezione[i] * aliquote[i]; quota != 0) totale += quota;
    return totale;
  };
  sommaProgettazione = somma(sommaProgettazione.Zero(), 1, kServiziProgettoTabellaB);
  sommaDirezione =
      somma(sommaDirezione.Zero(), kServiziProgettoTabellaB + 1, kLettereTabellaB.size());
}

double AliquotaTabellaB(std::string_view classe, std::string_view categoria, char lettera) {
  const RigaTabellaB* riga = RigaPer(kTabellaB, classe, categoria);
  return riga == nullptr ? 0 : riga->aliquote[kLettereTabellaB.find(lettera)];
}

std::optional<std::size_t> ColonnaTabelle2001(std::string_view classe, std::string_view categoria) {
  const ColonnaTabelleB* colonna = RigaPer(kColonneTabelleB, classe, categoria);
  if (colonna == nullptr) return std::nullopt;
  return static_cast<std::size_t>(colonna - kColonneTabelleB.data());
}

double AliquotaAggiornamento(std::string_view classe, std::string_view categoria) {
  const bool categoriaIgnota = classe == "7" && RigaPer(kTabellaB, classe, categoria) == nullptr;
  return AliquotaTabellaB(classe, categoriaIgnota ? "c" : categoria, 'd');
}

double AliquotaRevisioneCalcoli(std::string_view classe, std::string_view categoria,
                                bool tabelle2001) {
  if (!Comprende("1abcdefg", classe, categoria) && !Comprende("7abc", classe, categoria) &&
      !Comprende("2345689", classe, categoria))
    return 0;
  if (!tabelle2001) return AliquotaTabellaB(classe, categoria, 'c');
  const auto* esecutivo = std::ranges::find(kTabellaBEsl, "f", &ServizioEsl::codice);
  return esecutivo->aliquote[*ColonnaTabelle2001(classe, categoria)];
}

std::string NomePeriodoTariffario(int periodo) {
  if (periodo < 1 || periodo > static_cast<int>(kDecreti.size())) return "D.M. xx-yyyyy-zzzz";
  return std::string(kDecreti[static_cast<std::size_t>(periodo - 1)].nome);
}

std::string SiglaDecreto(int periodo) {
  if (periodo < 1 || periodo > static_cast<int>(kDecreti.size())) return "";
  return std::string(kDecreti[static_cast<std::size_t>(periodo - 1)].sigla);
}

std::string NomePeriodoTariffarioEsteso(int periodo) {
  constexpr std::size_t larghezza = 23;
  if (periodo < 1) return "";
  periodo = std::min(periodo, kPeriodo1987);
  std::string nome = NomePeriodoTariffario(periodo);
  nome.resize(larghezza, ' ');
  return nome += kDecreti[static_cast<std::size_t>(periodo - 1)].validita;
}

bool SenzaCategorie(std::string_view classe) { return Comprende("58", classe, ""); }

std::string StringaClasseCategoria(std::string_view classe, std::string_view categoria) {
  std::string testo(classe);
  if (!SenzaCategorie(classe)) testo += "/" + std::string(categoria);
  return testo;
}

}  // namespace orm
