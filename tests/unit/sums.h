// Does again what an explanation writes down, from its texts alone.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <string>
#include <string_view>

#include "runtime/explanation/explanation.h"
#include "runtime/numbers.h"
#include "tariff/money.h"

namespace orm {

// A sum under the rules of runtime/explanation/explanation.h; what is none throws.
class Calcolatrice {
 public:
  static double Fa(std::string_view conto) {
    Calcolatrice c(conto);
    const double esito = c.Addendi();
    if (!c.resto_.empty()) throw std::invalid_argument(std::string(conto));
    return esito;
  }

 private:
  explicit Calcolatrice(std::string_view conto) : resto_(conto) {}

  bool Prende(std::string_view segno) {
    if (!resto_.starts_with(segno)) return false;
    resto_.remove_prefix(segno.size());
    return true;
  }
  double Addendi() {
    for (double a = Fattori();;)
      if (Prende(" + "))
        a = a + Fattori();
      else if (Prende(" - "))
        a = a - Fattori();
      else
        return a;
  }
  double Fattori() {
    for (double a = Potenza();;)
      if (Prende(" x "))
        a = a * Potenza();
      else if (Prende(" / "))
        a = a / Potenza();
      else
        return a;
  }
  double Potenza() {
    double a = Termine();
    while (Prende(" ^ ")) a = std::pow(a, Termine());
    return a;
  }
  double Termine() {
    const bool radice = Prende("radq(");
    if (!radice && !Prende("(")) return Numero();
    const double a = Addendi();
    if (!Prende(")")) throw std::invalid_argument(std::string(resto_));
    return radice ? std::sqrt(a) : a;
  }
  double Numero() {
    const auto fine = std::min(resto_.find_first_not_of("-0123456789.,"), resto_.size());
    std::string cifre(resto_.substr(0, fine));
    resto_.remove_prefix(fine);
    std::erase(cifre, '.');
    std::ranges::replace(cifre, ',', '.');
    const auto numero = ParseNumber(cifre);
    if (!numero) throw std::invalid_argument(cifre);
    return *numero;
  }

  std::string_view resto_;
};

// What a cut leaves of a number.
inline double Tagliato(const Taglio& taglio, double valore) {
  const double scala = std::pow(10, taglio.decimali);
  switch (taglio.tipo) {
    case TipoTaglio::ParteIntera:
      return std::floor(valore);
    case TipoTaglio::Decimali:
      FormattaNumero(valore, taglio.decimali);
      return valore;
    case TipoTaglio::Arrotonda:
      return RoundOnText(valore, taglio.decimali);
    default:
      return (std::trunc(valore * scala) +
              (std::fmod(std::trunc(std::fabs(valore) * (scala * 10)), 10) >= 5)) /
             scala;
  }
}

// Why a step cannot be done again; empty where it can.
inline std::string Difetto(const Passaggio& passo) {
  if (!passo.risultato) return passo.conto.empty() ? "" : "un conto senza risultato";
  double valore = Calcolatrice::Fa(CifraEsatta(*passo.risultato));
  if (!passo.conto.empty() && Calcolatrice::Fa(passo.conto.Testo()) != valore)
    return CifraEsatta(Calcolatrice::Fa(passo.conto.Testo())) + " e non " + CifraEsatta(valore);
  for (const Taglio& taglio : passo.tagli) {
    const double resta = Tagliato(taglio, valore);
    if (taglio.prima != valore || taglio.dopo != resta)
      return CifraEsatta(resta) + " e non " + CifraEsatta(taglio.dopo);
    valore = resta;
  }
  return "";
}

// All steps of a result that is shown on the screen, which the last of them gives.
inline void ExpectRecomputed(const Catena& passi, double mostrato, const std::string& chi) {
  ASSERT_FALSE(passi.empty()) << chi;
  for (const Passaggio& passo : passi) EXPECT_EQ(Difetto(passo), "") << chi << passo.regola;
  EXPECT_FALSE(passi.back().cifra.empty()) << chi;
  EXPECT_DOUBLE_EQ(*passi.back().risultato, mostrato) << chi << passi.back().regola;
}

}  // namespace orm
