// Amounts in Italian words.
#include "tariff/closing/amount_in_words.h"

#include <array>
#include <string_view>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "tariff/money.h"

namespace orm {
namespace {

constexpr std::array<std::string_view, 20> kUnita = {
    "",         "uno",    "due",         "tre",      "quattro",
    "cinque",   "sei",    "sette",       "otto",     "nove",
    "dieci",    "undici", "dodici",      "tredici",  "quattordici",
    "quindici", "sedici", "diciassette", "diciotto", "diciannove"};

// From twenty on; without the last vowel before "uno" and "otto".
constexpr std::array<std::string_view, 10> kDecine = {
    "",          "",         "venti",    "trenta",  "quaranta",
    "cinquanta", "sessanta", "settanta", "ottanta", "novanta"};

// How a unit of the amount is told: nothing for 0, a word of its own for 1, else its count and its
// plural.
struct Unita {
  double valore;
  std::string_view una, molte;
};
constexpr std::array<Unita, 4> kGrandi = {{{1000000000, "unmiliardo", "miliardi"},
                                           {1000000, "unmilione", "milioni"},
                                           {1000, "mille", "mila"},
                                           {100, "cento", "cento"}}};

}  // namespace

std::string CentinaioInLettere(std::int16_t n) {
  if (n < 0 || n > 999)
    throw RuntimeFailure("L'importo è troppo grande per essere scritto in lettere.");
  const auto centinaia = static_cast<std::size_t>(n / 100),
             resto = static_cast<std::size_t>(n % 100);
  std::string testo;
  if (centinaia > 1) testo += kUnita[centinaia];
  if (centinaia > 0) testo += "cento";
  if (resto < 20) return testo.append(kUnita[resto]);
  const std::size_t unita = resto % 10;
  std::string_view decina = kDecine[resto / 10];
  if (unita == 1 || unita == 8) decina.remove_suffix(1);
  return testo.append(decina).append(kUnita[unita]);
}

void ImportoInLettere(std::string& testo, double& importo) {
  testo = importo == 0 ? "zero" : "";
  double v = importo;
  std::string scratch;
  FormattaNumero(v, scratch, 0);
  for (const Unita& unita : kGrandi) {
    const double n = Int(v / unita.valore);
    v = v - n * unita.valore;
    if (n == 1)
      testo += unita.una;
    else if (n != 0)
      testo.append(CentinaioInLettere(CheckedInt16(n))).append(unita.molte);
  }
  testo += CentinaioInLettere(CheckedInt16(v));
  FormattaNumero(importo, scratch, -2);
  testo += "/" + Right(scratch, 2);
}

}  // namespace orm
