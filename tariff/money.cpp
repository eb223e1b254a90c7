// Money and its texts.
#include "tariff/money.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

bool HaEsponente(std::string_view testo) { return testo.find('E') != std::string_view::npos; }

// `valore` with `scala` = 10, 100... parts to the unit, by the one digit that follows them.
double ArrotondaSullaCifra(double valore, double scala) {
  const std::string troncato = NumberText(Fix(valore * (scala * 10)));
  if (HaEsponente(troncato)) return valore;
  const double salto = troncato.back() >= '5' ? 1 : 0;
  return (Fix(valore * scala) + salto) / scala;
}

// The digits of a number on the two sides of its comma.
struct Cifre {
  std::string interi, decimali;
};

Cifre Dividi(std::string_view testo) {
  const auto punto = std::min(testo.find('.'), testo.size());
  Cifre cifre{std::string(testo.substr(0, punto)), ""};
  if (punto < testo.size()) cifre.decimali = testo.substr(punto + 1);
  if (cifre.interi.empty()) cifre.interi = "0";
  return cifre;
}

// Adds one to a number of digits; leading zeros stay, a carry makes it one digit longer.
void AumentaDiUno(std::string& cifre) {
  auto posto = cifre.size();
  while (posto > 0 && cifre[posto - 1] == '9') cifre[--posto] = '0';
  if (posto > 0)
    ++cifre[posto - 1];
  else
    cifre.insert(cifre.begin(), '1');
}

// A tail of seven nines is a whole number that a binary fraction missed.
void RiparaCoda(Cifre& cifre) {
  if (!cifre.decimali.starts_with("9999999")) return;
  cifre.decimali = "0";
  AumentaDiUno(cifre.interi);
}

// In an exponent form four nines are taken for such a tail. The digit before them should grow by
// one, but what takes its place is the blank that leads the text of the grown number: the place is
// kept and the digit is lost. This touches only numbers below 0.0001 or from 10^15 up.
void RiparaMantissa(Cifre& cifre) {
  RiparaCoda(cifre);
  const auto nove = cifre.decimali.find("9999");
  if (nove == std::string::npos) return;
  if (nove == 0) {
    AumentaDiUno(cifre.interi);
    cifre.decimali.assign(cifre.decimali.size(), '0');
    return;
  }
  cifre.decimali.replace(nove, 4, "0000");
  cifre.decimali[nove - 1] = ' ';
}

// Moves the comma by `esponente` places, with zeros where digits lack.
Cifre Sposta(const Cifre& cifre, int esponente) {
  std::string tutte = cifre.interi + cifre.decimali;
  int virgola = static_cast<int>(cifre.interi.size()) + esponente;
  if (virgola < 1) {
    tutte.insert(0, static_cast<std::size_t>(1 - virgola), '0');
    virgola = 1;
  }
  const auto taglio = static_cast<std::size_t>(virgola);
  if (tutte.size() < taglio) tutte.resize(taglio, '0');
  return {tutte.substr(0, taglio), tutte.substr(taglio)};
}

Cifre CifreDi(double valore) {
  const std::string testo = NumberText(valore);
  const auto e = testo.find('E');
  if (e == std::string::npos) return Dividi(testo);
  Cifre mantissa = Dividi(testo.substr(0, e));
  RiparaMantissa(mantissa);
  return Sposta(mantissa, static_cast<int>(ParseNumber(testo.substr(e + 1)).value_or(0)));
}

// Zeros up to 18 digits in all and a 1 behind them, a hair above every tail of zeros.
void Allunga(Cifre& cifre) {
  const auto lunghezza = cifre.interi.size() + cifre.decimali.size();
  if (lunghezza < 18) cifre.decimali += std::string(18 - lunghezza, '0') + "1";
}

// Blanks between the digits do not count.
double ValoreDi(const std::string& testo) { return ParseNumber(TogliSpazi(testo)).value_or(0); }

double ValoreTagliato(Cifre cifre) {
  if (cifre.interi.size() + 1 + cifre.decimali.size() < 18) Allunga(cifre);
  return ValoreDi(cifre.interi + "." + cifre.decimali);
}

// Cuts to `quanti` decimals. Five nines behind the cut make the last one grow; a carry out of the
// decimals does not reach the whole part: they become one digit longer (1.9999998 to one decimal
// is 1,10).
void TagliaDecimali(std::string& decimali, std::size_t quanti) {
  if (decimali.size() < quanti) {
    decimali.resize(quanti, '0');
    return;
  }
  const bool cresce = decimali.compare(quanti, 5, "99999") == 0;
  decimali.resize(quanti);
  if (!cresce) return;
  decimali = TogliSpazi(decimali);
  AumentaDiUno(decimali);
}

std::string ConVirgola(const Cifre& cifre) {
  const std::string interi = InserisciPuntiMigliaia(cifre.interi);
  return cifre.decimali.empty() ? interi : interi + "," + cifre.decimali;
}

}  // namespace

double LireInEuro(double valore) { return ArrotondaSullaCifra(valore / kLirePerEuro, 100); }

double EuroInLire(double valore) { return ArrotondaSullaCifra(valore * kLirePerEuro, 1); }

void FormattaNumero(double& valore, std::string& testo, int decimali) {
  if (valore == 0) {
    testo = "0";
    return;
  }
  const bool negativo = valore < 0;
  Cifre cifre = CifreDi(std::fabs(valore));
  RiparaCoda(cifre);
  Allunga(cifre);
  if (decimali == 0) {
    cifre.decimali.clear();
    valore = ValoreDi(cifre.interi);
  } else {
    TagliaDecimali(cifre.decimali, static_cast<std::size_t>(std::abs(decimali)));
    valore = ValoreTagliato(cifre);
    while (decimali > 0 && cifre.decimali.ends_with('0')) cifre.decimali.pop_back();
  }
  testo = ConVirgola(cifre);
  if (!negativo) return;
  testo.insert(0, "-");
  valore = -valore;
}

std::string FormattaNumero(double& valore, int decimali) {
  std::string testo;
  FormattaNumero(valore, testo, decimali);
  return testo;
}

std::string FormattaCopia(double valore, int decimali) { return FormattaNumero(valore, decimali); }

std::string InserisciPuntiMigliaia(std::string cifre) {
  std::string gruppi;
  while (cifre.size() >= 4) {
    gruppi.insert(0, "." + cifre.substr(cifre.size() - 3));
    cifre.resize(cifre.size() - 3);
  }
  return cifre + gruppi;
}

double ArrotondaA5(double valore, int modo, int direzione) {
  if (valore == 0) return 0;
  const double segno = valore < 0 ? -1 : 1;
  const double a = modo == 2 ? std::fabs(valore) * 100 : std::fabs(valore);
  const bool insu = direzione != 0;
  double n = Fix(a);
  const bool frazione = a > n;
  if (ModuloReale(n, 5) != 0)
    n = 5 * (Int(n / 5) + (insu ? 1 : 0));
  else if (insu && frazione)
    n += 5;
  return modo == 2 ? segno * n / 100 : segno * n;
}

double ModuloReale(double a, double b) { return a - b * Int(a / b); }

std::string TogliSpazi(std::string_view testo) {
  std::string senza(testo);
  std::erase(senza, ' ');
  return senza;
}

void PareggiaStringhe(std::string& prima, std::string& seconda) {
  const auto a = Characters(prima), b = Characters(seconda);
  if (a < b) prima += Blanks(b - a);
  if (b < a) seconda += Blanks(a - b);
}

}  // namespace orm
