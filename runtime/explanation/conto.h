// A sum that is done and can be written down: one expression is both, so that they cannot differ.
//
//   importo * P.valore * aliquota / 100 * Coefficiente
//
// with a Conto at its start is the number that the same expression on doubles would be, operator by
// operator, and Testo() writes it under the rules of explanation.h. A Conto on the right of an
// operator stands there in parentheses where it needs them; a term of 0 that is added or taken away
// is not written. Everywhere else a Conto is its number.
//
// A number alone is no more than that; the terms of a sum are one piece of memory, which an
// expression fills as it goes and copies share until one of them grows. Their text is made when it
// is asked for. What a mute Conto has a part in is mute: a number that keeps no terms, for those
// who know that nobody will ask.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace orm {

class Conto {
 public:
  Conto() = default;  // an empty sum, 0
  Conto(double valore) : valore_(valore), quanti_(1) {}
  static Conto Muto(double valore = 0) {
    Conto muto(valore);
    muto.muto_ = true;
    return muto;
  }
  Conto Zero() const { return muto_ ? Muto() : Conto(); }  // mute where this is

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
  static constexpr std::uint8_t kPassi = 64;
  struct Passo {
    double numero;
    char segno;
    std::uint8_t apre, chiude;  // parentheses before and behind the number
  };
  Conto& Fa(char segno, double b, double esito) {
    if (!muto_) Scrive(segno, b);
    valore_ = esito;
    return *this;
  }
  Conto& Fa(char segno, const Conto& b, double esito) {
    if (muto_ || b.muto_) return *this = Muto(esito);
    Scrive(segno, b);
    valore_ = esito;
    return *this;
  }
  bool Nulla() const { return Semplice() && valore_ == 0; }
  void Scrive(char segno, double b);
  void Scrive(char segno, const Conto& b);
  // Room for more terms, and the sum so far in parentheses where a factor follows it.
  void Prepara(char segno, std::uint8_t posti);
  void Allarga(std::uint8_t posti);

  double valore_ = 0;
  std::shared_ptr<Passo[]> passi_;  // from two terms on
  std::uint8_t quanti_ = 0, posti_ = 0;
  bool somma_ = false;  // the last operator adds or subtracts
  bool muto_ = false;
};

// The number types are templates, so that 2 * conto is no number before it is a sum.
template <class T>
concept UnNumero = std::is_arithmetic_v<T>;

inline Conto operator+(Conto a, const Conto& b) { return std::move(a += b); }
inline Conto operator-(Conto a, const Conto& b) { return std::move(a -= b); }
inline Conto operator*(Conto a, const Conto& b) { return std::move(a *= b); }
inline Conto operator/(Conto a, const Conto& b) { return std::move(a /= b); }
inline Conto operator+(Conto a, UnNumero auto b) { return std::move(a += static_cast<double>(b)); }
inline Conto operator-(Conto a, UnNumero auto b) { return std::move(a -= static_cast<double>(b)); }
inline Conto operator*(Conto a, UnNumero auto b) { return std::move(a *= static_cast<double>(b)); }
inline Conto operator/(Conto a, UnNumero auto b) { return std::move(a /= static_cast<double>(b)); }
inline Conto operator+(UnNumero auto a, const Conto& b) { return std::move(Conto(a) += b); }
inline Conto operator-(UnNumero auto a, const Conto& b) { return std::move(Conto(a) -= b); }
inline Conto operator*(UnNumero auto a, const Conto& b) { return std::move(Conto(a) *= b); }
inline Conto operator/(UnNumero auto a, const Conto& b) { return std::move(Conto(a) /= b); }

}  // namespace orm
