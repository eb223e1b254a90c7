// Money: conversion, texts, cuts.
#include "tariff/money.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "runtime/numbers.h"

namespace orm {
namespace {

struct Cut {
  std::string text;
  double value;
  bool operator==(const Cut&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Cut& cut) {
  return out << '"' << cut.text << "\" " << NumberText(cut.value);
}

Cut Formatta(double valore, int decimali) {
  const std::string testo = FormattaNumero(valore, decimali);
  return {testo, valore};
}

constexpr double kNonDetto = std::numeric_limits<double>::quiet_NaN();

// An amount, its decimals (negative: with their zeros), its text, and what is left of it.
TEST(FormattaNumero, CutsAndWritesBack) {
  const struct {
    double valore;
    int decimali;
    const char* testo;
    double taglio = kNonDetto;
  } casi[] = {
      {1234.5678, 2, "1.234,56", 1234.56},
      {1234.5678, -2, "1.234,56", 1234.56},
      {1999.99, 0, "1.999", 1999},
      {0.5, 0, "0", 0},
      {1000000, 0, "1.000.000", 1000000},
      {999, 0, "999", 999},
      {-1500.75, -2, "-1.500,75", -1500.75},
      {-1500.75, 0, "-1.500", -1500},
      {123456789012.345, -2, "123.456.789.012,34", 123456789012.34},
      {1234.5, -2, "1.234,50", 1234.5},
      {1234, -2, "1.234,00", 1234},
      {1234.5, 2, "1.234,5", 1234.5},
      {1234, 2, "1.234", 1234},
      {0, -2, "0", 0},
      {0.001, 2, "0"},
      // What is cut away wholly leaves a trace.
      {0.001, -2, "0,00", 1e-18},
      {-0.001, -2, "-0,00", -1e-18},
      {0.4, 0, "0", 0},
      {-0.4, 0, "-0"},
      // Seven nines are the next whole number.
      {12.9999999, 0, "13", 13},
      {12.9999999, -2, "13,00", 13},
      {12.9999998, 0, "12", 12},
      {12.999999, 0, "12", 12},
      {999.99999999, 0, "1.000", 1000},
      {-0.99999999, 2, "-1", -1},
      // Five nines behind the cut grow the last decimal.
      {2.4599999, -2, "2,46", 2.46},
      {2.4599998, -2, "2,45", 2.45},
      {2.459999, -2, "2,45", 2.45},
      {2.0099999, -2, "2,01", 2.01},
      {2.0999999, -2, "2,10", 2.1},
      {1.005 * 1000, -2, "1.005,00", 1005},
      // The carry does not reach the whole part: 1,9 and one tenth is 1,10.
      {1.9999998, -1, "1,10", 1.1},
      {1.9999998, 1, "1,1", 1.1},
      // Small numbers come in exponent form, with the nines of their mantissa; four nines further
      // on, the digit before them gives way to a blank.
      {0.000015, 5, "0,00001"},
      {0.000015, 6, "0,000015", 0.000015000000000001},
      {0.0000157, -6, "0,000015"},
      {0.000015, -2, "0,00", 1e-18},
      {9.9999999e-5, 5, "0,0001"},
      {1.9999e-5, 6, "0,00002"},
      {1.23999945e-5, 9, "0,000012 "},
      {1.5e15, -2, "1.500.000.000.000.000,00", 1.5e15},
      {1e20, 0, "100.000.000.000.000.000.000", 1e20},
      {9.99999999999999e15, 0, "10.000.000.000.000.000", 1e16},
  };
  for (const auto& caso : casi) {
    const Cut cut = Formatta(caso.valore, caso.decimali);
    EXPECT_EQ(cut.text, caso.testo) << NumberText(caso.valore) << ' ' << caso.decimali;
    EXPECT_TRUE(std::isnan(caso.taglio) || cut.value == caso.taglio) << caso.testo;
  }
  EXPECT_NEAR(Formatta(1.23999945e-5, 9).value, 1.2e-5, 1e-16);
}

std::string CentsText(std::int64_t cents) {
  std::string digits = std::to_string(cents / 100);
  for (auto i = static_cast<int>(digits.size()) - 3; i > 0; i -= 3)
    digits.insert(static_cast<std::size_t>(i), ".");
  const auto rest = cents % 100;
  return digits + (rest < 10 ? ",0" : ",") + std::to_string(rest);
}

// Sums and products of cents are shown by their cents, whatever tail the fraction has.
TEST(FormattaNumero, RepairsTheTailsOfBinaryFractions) {
  std::mt19937_64 random(143);
  for (int i = 0; i < 20000; ++i) {
    const auto a = static_cast<std::int64_t>(random() % 100000000) + 1;
    const auto b = static_cast<std::int64_t>(random() % 100000000);
    const double sum = static_cast<double>(a) / 100 + static_cast<double>(b) / 100;
    const Cut cut = Formatta(sum, -2);
    ASSERT_EQ(cut.text, CentsText(a + b));
    ASSERT_EQ(cut.value, static_cast<double>(a + b) / 100);
  }
}

TEST(FormattaNumero, IsTheSameOnceMore) {
  std::mt19937_64 random(1949);
  std::uniform_real_distribution<double> exponent(-4, 14);
  for (int i = 0; i < 20000; ++i) {
    const double value = std::pow(10, exponent(random)) * (i % 2 == 0 ? 1 : -1);
    const int decimali = static_cast<int>(random() % 19) - 9;
    const Cut once = Formatta(value, decimali);
    const Cut twice = Formatta(once.value, decimali);
    if (once.value != 0) {
      ASSERT_EQ(once, twice) << NumberText(value) << ' ' << decimali;
    }
    // Of the number no more than its 15 digits are seen.
    const double digits = std::fabs(value) * 1e-14;
    ASSERT_LE(std::fabs(once.value - value), std::pow(10, -std::abs(decimali)) + digits);
  }
}

TEST(Conversion, LireInEuro) {
  EXPECT_EQ(LireInEuro(1936.27), 1);
  EXPECT_EQ(LireInEuro(1000), 0.52);
  EXPECT_EQ(LireInEuro(969), 0.5);
  EXPECT_EQ(LireInEuro(106000), 54.74);
  EXPECT_EQ(LireInEuro(1000000), 516.46);
  EXPECT_EQ(LireInEuro(5000000000), 2582284.50);
  EXPECT_EQ(LireInEuro(0), 0);
}

// -0,516: the cent goes upward; a great number has no plain digits to look at.
TEST(Conversion, LireInEuroOddities) {
  EXPECT_EQ(LireInEuro(-1000), -0.5);
  EXPECT_EQ(LireInEuro(-969), -0.5);
  EXPECT_EQ(LireInEuro(1e16), 1e16 / 1936.27);
}

TEST(Conversion, EuroInLire) {
  EXPECT_EQ(EuroInLire(1), 1936);
  EXPECT_EQ(EuroInLire(0.5), 968);
  EXPECT_EQ(EuroInLire(0.01), 19);
  EXPECT_EQ(EuroInLire(10), 19363);
  EXPECT_EQ(EuroInLire(-10), -19361);
  EXPECT_EQ(EuroInLire(2582284.50), 5000000009.0);
}

// By whole numbers: the third decimal is a digit of v * 10^5 / 193627.
TEST(Conversion, AgreesWithWholeNumbers) {
  std::mt19937_64 random(193627);
  for (int i = 0; i < 20000; ++i) {
    const auto lire = static_cast<std::int64_t>(random() % 100000000000);
    const std::int64_t mills = lire * 100000 / 193627;
    const std::int64_t cents = mills / 10 + (mills % 10 >= 5 ? 1 : 0);
    ASSERT_EQ(LireInEuro(static_cast<double>(lire)), static_cast<double>(cents) / 100) << lire;
  }
}

TEST(ArrotondaA5, GoesToTheMultipleAboveOrBelow) {
  EXPECT_EQ(ArrotondaA5(12, 0, 1), 15);
  EXPECT_EQ(ArrotondaA5(12, 0, 0), 10);
  EXPECT_EQ(ArrotondaA5(15, 0, 1), 15);
  EXPECT_EQ(ArrotondaA5(15.2, 0, 1), 20);
  EXPECT_EQ(ArrotondaA5(15.2, 0, 0), 15);
  EXPECT_EQ(ArrotondaA5(-12, 0, 1), -15);
  EXPECT_EQ(ArrotondaA5(0, 0, 1), 0);
  EXPECT_EQ(ArrotondaA5(1.22, 2, 1), 1.25);
  EXPECT_EQ(ArrotondaA5(1.22, 2, 0), 1.2);
  EXPECT_EQ(ArrotondaA5(12, 7, 9), 15);
}

TEST(ModuloReale, IsNeverNegativeForAPositiveDivisor) {
  EXPECT_EQ(ModuloReale(7.5, 2), 1.5);
  EXPECT_EQ(ModuloReale(-7.5, 2), 0.5);
}

TEST(Texts, CountCharacters) {
  EXPECT_EQ(TogliSpazi("  a b  c "), "abc");
  std::string breve = "È", lunga = "abc";
  PareggiaStringhe(breve, lunga);
  EXPECT_EQ(breve, "È  ");
  EXPECT_EQ(lunga, "abc");
  PareggiaStringhe(lunga, breve += "x");
  EXPECT_EQ(lunga, "abc ");
}

}  // namespace
}  // namespace orm
