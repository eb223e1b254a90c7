// Money: conversion, texts, cuts.
#include "tariff/money.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
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

using C = Cut;

TEST(FormattaNumero, CutsAndWritesBack) {
  EXPECT_EQ(Formatta(1234.5678, 2), (C{"1.234,56", 1234.56}));
  EXPECT_EQ(Formatta(1234.5678, -2), (C{"1.234,56", 1234.56}));
  EXPECT_EQ(Formatta(1999.99, 0), (C{"1.999", 1999}));
  EXPECT_EQ(Formatta(0.5, 0), (C{"0", 0}));
  EXPECT_EQ(Formatta(1000000, 0), (C{"1.000.000", 1000000}));
  EXPECT_EQ(Formatta(999, 0), (C{"999", 999}));
  EXPECT_EQ(Formatta(-1500.75, -2), (C{"-1.500,75", -1500.75}));
  EXPECT_EQ(Formatta(-1500.75, 0), (C{"-1.500", -1500}));
  EXPECT_EQ(Formatta(123456789012.345, -2), (C{"123.456.789.012,34", 123456789012.34}));
}

TEST(FormattaNumero, KeepsZerosOnlyForFixedDecimals) {
  EXPECT_EQ(Formatta(1234.5, -2), (C{"1.234,50", 1234.5}));
  EXPECT_EQ(Formatta(1234, -2), (C{"1.234,00", 1234}));
  EXPECT_EQ(Formatta(1234.5, 2), (C{"1.234,5", 1234.5}));
  EXPECT_EQ(Formatta(1234, 2), (C{"1.234", 1234}));
  EXPECT_EQ(Formatta(0, -2), (C{"0", 0}));
  EXPECT_EQ(Formatta(0.001, 2).text, "0");
  EXPECT_EQ(Formatta(0.001, -2).text, "0,00");
}

TEST(FormattaNumero, WhatIsCutAwayWhollyLeavesATrace) {
  EXPECT_EQ(Formatta(0.001, -2).value, 1e-18);
  EXPECT_EQ(Formatta(-0.001, -2), (C{"-0,00", -1e-18}));
  EXPECT_EQ(Formatta(0.4, 0).value, 0);
  EXPECT_EQ(Formatta(-0.4, 0).text, "-0");
}

TEST(FormattaNumero, SevenNinesAreTheNextWholeNumber) {
  EXPECT_EQ(Formatta(12.9999999, 0), (C{"13", 13}));
  EXPECT_EQ(Formatta(12.9999999, -2), (C{"13,00", 13}));
  EXPECT_EQ(Formatta(12.9999998, 0), (C{"12", 12}));
  EXPECT_EQ(Formatta(12.999999, 0), (C{"12", 12}));
  EXPECT_EQ(Formatta(999.99999999, 0), (C{"1.000", 1000}));
  EXPECT_EQ(Formatta(-0.99999999, 2), (C{"-1", -1}));
}

TEST(FormattaNumero, FiveNinesBehindTheCutGrowTheLastDecimal) {
  EXPECT_EQ(Formatta(2.4599999, -2), (C{"2,46", 2.46}));
  EXPECT_EQ(Formatta(2.4599998, -2), (C{"2,45", 2.45}));
  EXPECT_EQ(Formatta(2.459999, -2), (C{"2,45", 2.45}));
  EXPECT_EQ(Formatta(2.0099999, -2), (C{"2,01", 2.01}));
  EXPECT_EQ(Formatta(2.0999999, -2), (C{"2,10", 2.1}));
  EXPECT_EQ(Formatta(1.005 * 1000, -2), (C{"1.005,00", 1005}));
}

// The carry does not reach the whole part: 1,9 and one tenth is 1,10.
TEST(FormattaNumero, ACarryOutOfTheDecimalsStaysThere) {
  EXPECT_EQ(Formatta(1.9999998, -1), (C{"1,10", 1.1}));
  EXPECT_EQ(Formatta(1.9999998, 1), (C{"1,1", 1.1}));
}

TEST(FormattaNumero, SmallNumbersComeInExponentForm) {
  EXPECT_EQ(Formatta(0.000015, 5).text, "0,00001");
  EXPECT_EQ(Formatta(0.000015, 6).text, "0,000015");
  EXPECT_EQ(Formatta(0.0000157, -6).text, "0,000015");
  EXPECT_EQ(Formatta(0.000015, -2), (C{"0,00", 1e-18}));
  EXPECT_NEAR(Formatta(0.000015, 6).value, 0.000015, 1e-17);
}

TEST(FormattaNumero, NinesOfAMantissa) {
  EXPECT_EQ(Formatta(9.9999999e-5, 5).text, "0,0001");
  EXPECT_EQ(Formatta(1.9999e-5, 6).text, "0,00002");
  // Four nines further on: the digit before them gives way to a blank.
  EXPECT_EQ(Formatta(1.23999945e-5, 9).text, "0,000012 ");
  EXPECT_NEAR(Formatta(1.23999945e-5, 9).value, 1.2e-5, 1e-16);
}

TEST(FormattaNumero, GreatNumbers) {
  EXPECT_EQ(Formatta(1.5e15, -2), (C{"1.500.000.000.000.000,00", 1.5e15}));
  EXPECT_EQ(Formatta(1e20, 0), (C{"100.000.000.000.000.000.000", 1e20}));
  EXPECT_EQ(Formatta(9.99999999999999e15, 0), (C{"10.000.000.000.000.000", 1e16}));
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
