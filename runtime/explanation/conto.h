// A sum that is done and can be written down: one expression is both, so that they cannot differ.
//
//   importo * P.valore * aliquota / 100 * Coefficiente
//
// with a Conto at its start is the number that the same expression on doubles would be, operator by
// operator, and Testo() writes it under the rules of explanation.h. A Conto on the right of an
// operator stands there in parentheses. Everywhere else it is its number. It keeps its terms in
// itself: where nobody asks for the text it costs a few stores.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

namespace orm {

class Conto {
 public:
  Conto() = default;  // an empty sum, 0
  Conto(double valore) : valore_(valore), quanti_(1) { passi_[0] = {valore, ' ', 0, 0}; }
  Conto(const Conto& altro) { *this = altro; }
  Conto& operator=(const Conto& altro) {
    valore_ = altro.valore_;
    quanti_ = altro.quanti_;
    somma_ = altro.somma_;
    std::copy_n(altro.passi_.begin(), quanti_, passi_.begin());
    return *this;
  }

  operator double() const { return valore_; }
  double Valore() const { return valore_; }
  // A sum of more terms than it has room for shows its first ones as the number that they came to.
  std::string Testo() const;
  bool Semplice() const { return quanti_ <= 1; }  // nothing to do: a number

  Conto& operator+=(double b) { return Fa('+', b, valore_ + b); }
  Conto& operator-=(double b) { return Fa('-', b, valore_ - b); }
  Conto& operator*=(double b) { return Fa('x', b, valore_ * b); }
  Conto& operator/=(double b) { return Fa('/', b, valore_ / b); }
  Conto& operator+=(const Conto& b) { return Fa('+', b, valore_ + b.valore_); }
  Conto& operator-=(const Conto& b) { return Fa('-', b, valore_ - b.valore_); }
  Conto& operator*=(const Conto& b) { return Fa('x', b, valore_ * b.valore_); }
  Conto& operator/=(const Conto& b) { return Fa('/', b, valore_ / b.valore_); }

 private:
  static constexpr std::size_t kPassi = 64;
  struct Passo {
    double numero;
    char segno;
    std::uint8_t apre, chiude;  // parentheses before and behind the number
  };
  Conto& Fa(char segno, double b, double esito) {
    Prepara(segno, 1);
    passi_[quanti_++] = {b, segno, 0, 0};
    valore_ = esito;
    return *this;
  }
  Conto& Fa(char segno, const Conto& b, double esito);
  // Room for more terms, and the sum so far in parentheses where a factor follows it.
  void Prepara(char segno, std::size_t posti) {
    if (quanti_ == 0 && (segno != '+' || posti > 1)) *this = Conto(0.0);
    if (quanti_ + posti > kPassi) *this = Conto(valore_);
    const bool fattore = segno == 'x' || segno == '/';
    if (fattore && somma_) {
      ++passi_[0].apre;
      ++passi_[quanti_ - 1].chiude;
    }
    somma_ = !fattore && quanti_ > 0;
  }

  double valore_ = 0;
  std::size_t quanti_ = 0;
  bool somma_ = false;  // the last operator adds or subtracts
  std::array<Passo, kPassi> passi_;
};

// The number types are templates, so that 2 * conto is no number before it is a sum.
template <class T>
concept UnNumero = std::is_arithmetic_v<T>;

inline Conto operator+(Conto a, const Conto& b) { return a += b; }
inline Conto operator-(Conto a, const Conto& b) { return a -= b; }
inline Conto operator*(Conto a, const Conto& b) { return a *= b; }
inline Conto operator/(Conto a, const Conto& b) { return a /= b; }
inline Conto operator+(Conto a, UnNumero auto b) { return a += static_cast<double>(b); }
inline Conto operator-(Conto a, UnNumero auto b) { return a -= static_cast<double>(b); }
inline Conto operator*(Conto a, UnNumero auto b) { return a *= static_cast<double>(b); }
inline Conto operator/(Conto a, UnNumero auto b) { return a /= static_cast<double>(b); }
inline Conto operator+(UnNumero auto a, const Conto& b) { return Conto(a) += b; }
inline Conto operator-(UnNumero auto a, const Conto& b) { return Conto(a) -= b; }
inline Conto operator*(UnNumero auto a, const Conto& b) { return Conto(a) *= b; }
inline Conto operator/(UnNumero auto a, const Conto& b) { return Conto(a) /= b; }

}  // namespace orm
