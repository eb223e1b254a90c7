// Money and its texts: the two currencies, the Italian number text that cuts the value it prints,
// and small helpers on numbers and texts.
#pragma once

#include <string>
#include <string_view>

namespace orm {

// Lire for one Euro, fixed by the regulation of the Council of the European Union 2866/98.
inline constexpr double kLirePerEuro = 1936.27;

// Lire to Euro with two decimals. Only the third decimal decides the rounding, what follows it is
// not looked at, and rounding up adds a cent also to a negative amount. An amount so great that its
// digits have no plain text is given back unrounded.
double LireInEuro(double valore);

// Euro to whole Lire, by the first decimal, in the same manner.
double EuroInLire(double valore);

// Italian text of a number: thousands points, decimal comma, leading minus. The decimals are cut,
// not rounded, and `valore` keeps the cut value, so that a printed figure is the figure summed.
//   decimali > 0: so many decimals at most, zeros at the end dropped
//   decimali = 0: whole number
//   decimali < 0: exactly -decimali decimals
// 0 is "0" in every case. The tails that binary fractions leave (0.0899999999) are repaired on the
// digits. What is cut away wholly leaves a tiny number behind, not 0, except with 0 decimals.
void FormattaNumero(double& valore, std::string& testo, int decimali);
std::string FormattaNumero(double& valore, int decimali);
// The text alone, for figures that are shown and not reckoned with.
std::string FormattaCopia(double valore, int decimali);

// "1234567" to "1.234.567".
std::string InserisciPuntiMigliaia(std::string cifre);

// Nearest multiple of 5 on one side of |valore|, sign kept. `modo` 2 works in hundredths, any other
// in units; `direzione` 0 goes down, any other up. A multiple of 5 stays, but for a fraction above
// it that goes up.
double ArrotondaA5(double valore, int modo, int direzione);

// Remainder a - b * Int(a / b) of real numbers.
double ModuloReale(double a, double b);

// The text without any of its blanks.
std::string TogliSpazi(std::string_view testo);

// Pads the shorter text on the right to the length of the longer, in characters.
void PareggiaStringhe(std::string& prima, std::string& seconda);

}  // namespace orm
