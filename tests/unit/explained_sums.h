// Does the sums of explanations again from their texts, as a person with a pocket calculator does.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "runtime/explanation/explanation.h"
#include "runtime/numbers.h"

namespace orm {

class DoneAgain {
 public:
  explicit DoneAgain(std::string text) : text_(std::move(text)) { value_ = Sum(); }
  double Value() const { return at_ == text_.size() ? value_ : std::nan(""); }

 private:
  bool Takes(const std::string& sign) {
    if (text_.compare(at_, sign.size(), sign) != 0) return false;
    at_ += sign.size();
    return true;
  }
  double Sum() {
    for (double value = Product();;) {
      if (Takes(" + "))
        value += Product();
      else if (Takes(" - "))
        value -= Product();
      else
        return value;
    }
  }
  double Product() {
    for (double value = Power();;) {
      if (Takes(" x "))
        value *= Power();
      else if (Takes(" / "))
        value /= Power();
      else
        return value;
    }
  }
  double Power() {
    const double base = Term();
    return Takes(" ^ ") ? std::pow(base, Power()) : base;
  }
  double Term() {
    if (Takes("(")) {
      const double value = Sum();
      return Takes(")") ? value : std::nan("");
    }
    const std::size_t end = std::min(text_.find_first_not_of("-0123456789.,", at_), text_.size());
    std::string number = text_.substr(at_, end - at_);
    at_ = end;
    std::erase(number, '.');
    std::ranges::replace(number, ',', '.');
    return ParseNumber(number).value_or(std::nan(""));
  }
  std::string text_;
  std::size_t at_ = 0;
  double value_ = 0;
};

// Each sum gives its result, each rounding what is left; the last figure is that of the result.
inline void ExpectRecomputed(const Catena& passi, double mostrato, const std::string& chi) {
  ASSERT_FALSE(passi.empty()) << chi;
  for (const Passaggio& passo : passi) {
    if (!passo.conto.empty()) {
      EXPECT_EQ(DoneAgain(passo.conto.Testo()).Value(), *passo.risultato)
          << chi << passo.conto.Testo();
    }
    for (const Taglio& taglio : passo.tagli) {
      if (taglio.tipo != TipoTaglio::Arrotonda) continue;
      EXPECT_EQ(taglio.dopo, RoundOnText(taglio.prima, taglio.decimali)) << chi << passo.regola;
    }
  }
  const Passaggio& ultimo = passi.back();
  EXPECT_FALSE(ultimo.cifra.empty()) << chi;
  EXPECT_DOUBLE_EQ(*ultimo.risultato, mostrato) << chi << ultimo.regola;
}

}  // namespace orm
