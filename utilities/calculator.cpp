// The calculator.
#include "utilities/calculator.h"

#include <cmath>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/money.h"

namespace orm {
namespace {

constexpr double kTroppoGrande = 1e15;
constexpr std::size_t kColonnaNastro = 24;

std::string Testo(double numero) { return FormatPattern(numero, "#,##0.##########"); }

std::string Riga(double numero, const std::string& segno) {
  const std::string testo = Testo(numero);
  const std::size_t lunghezza = Characters(testo);
  return (lunghezza < kColonnaNastro ? Blanks(kColonnaNastro - lunghezza) : "") + testo + " " +
         segno;
}

double Esegui(double a, char operazione, double b) {
  switch (operazione) {
    case '+':
      return a + b;
    case '-':
      return a - b;
    case 'x':
      return a * b;
    case ':':
      if (b == 0) throw RuntimeFailure("Non si può dividere per zero.");
      return a / b;
    default:
      return b;
  }
}

}  // namespace

double Calcolatrice::Premi(double numero, char operazione) {
  // Rounded on its 15 digits, so that 0,1 + 0,2 is 0,3.
  const double esito = RoundOnText(Esegui(totale_, attesa_, numero), 10);
  if (!(std::fabs(esito) < kTroppoGrande)) throw RuntimeFailure("Il risultato ha più di 15 cifre.");
  nastro_.push_back({Riga(numero, std::string(1, operazione)), numero});
  if (operazione == '=') nastro_.push_back({Riga(esito, "*"), esito});
  totale_ = esito;
  attesa_ = operazione;
  return esito;
}

void Calcolatrice::Azzera() {
  totale_ = 0;
  attesa_ = '=';
}

double Calcolatrice::LireInEuroSulNastro(double lire) {
  const double euro = LireInEuro(lire);
  nastro_.push_back({"L. " + Testo(lire) + " = € " + FormatPattern(euro, "#,##0.00"), euro});
  return euro;
}

double Calcolatrice::EuroInLireSulNastro(double euro) {
  const double lire = EuroInLire(euro);
  nastro_.push_back({"€ " + FormatPattern(euro, "#,##0.00") + " = L. " + Testo(lire), lire});
  return lire;
}

std::string Calcolatrice::Nastro() const {
  std::string testo;
  for (const RigaNastro& riga : nastro_) testo += (testo.empty() ? "" : "\n") + riga.testo;
  return testo;
}

std::optional<double> Calcolatrice::SulNastro(std::size_t riga) const {
  return riga < nastro_.size() ? std::optional(nastro_[riga].numero) : std::nullopt;
}

}  // namespace orm
