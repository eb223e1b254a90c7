// A sum that is done and can be written down: one expression is both, so that they cannot differ.
//
//   Conto(importo) * P.valore * aliquota / 100 * Coefficiente
//
// is the number that the same expression on doubles would be, operator by operator from the left,
// and Testo() writes it under the rules of explanation.h. What stands on the right of an operator
// is a number; a product of a whole sum before it gets that in parentheses, as C++ had it. It keeps
// its terms in place: without a text it costs a few stores.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <string>

namespace orm {

// A number that came about as a sum, 0,10 + 0,25, which a Conto writes out.
class Somma {
 public:
  Somma& operator+=(double addendo) {
    assert(quanti_ < addendi_.size());
    valore_ += addendi_[quanti_++] = addendo;
    return *this;
  }
  double Valore() const { return valore_; }
  // "0,1 + 0,25", without parentheses.
  std::string Testo() const;
  std::size_t Addendi() const { return quanti_; }

 private:
  double valore_ = 0;
  std::array<double, 32> addendi_{};
  std::size_t quanti_ = 0;
};

class Conto {
 public:
  explicit Conto(double valore) : valore_(valore) { Aggiungi(' ', valore, nullptr); }
  explicit Conto(const Somma& somma) : valore_(somma.Valore()) { Aggiungi(' ', valore_, &somma); }
  explicit Conto(Somma&&) = delete;  // it is looked at when the text is asked for

  Conto& operator*=(double b) { return Fa('x', b, nullptr, valore_ * b); }
  Conto& operator/=(double b) { return Fa('/', b, nullptr, valore_ / b); }
  Conto& operator+=(double b) { return Fa('+', b, nullptr, valore_ + b); }
  Conto& operator-=(double b) { return Fa('-', b, nullptr, valore_ - b); }
  Conto& operator*=(const Somma& b) { return Fa('x', b.Valore(), &b, valore_ * b.Valore()); }
  Conto& operator*=(Somma&&) = delete;

  double Valore() const { return valore_; }
  std::string Testo() const;

 private:
  struct Passo {
    char segno;
    double numero;
    const Somma* somma;
  };
  Conto& Fa(char segno, double numero, const Somma* somma, double valore) {
    Aggiungi(segno, numero, somma);
    valore_ = valore;
    return *this;
  }
  void Aggiungi(char segno, double numero, const Somma* somma) {
    assert(quanti_ < passi_.size());
    passi_[quanti_++] = {segno, numero, somma};
  }

  double valore_;
  std::array<Passo, 12> passi_{};
  std::size_t quanti_ = 0;
};

inline Conto operator*(Conto a, double b) { return a *= b; }
inline Conto operator/(Conto a, double b) { return a /= b; }
inline Conto operator+(Conto a, double b) { return a += b; }
inline Conto operator-(Conto a, double b) { return a -= b; }
inline Conto operator*(Conto a, const Somma& b) { return a *= b; }
Conto operator*(Conto a, Somma&& b) = delete;

}  // namespace orm
