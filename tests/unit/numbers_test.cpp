// Text of numbers, patterns, checked whole numbers.
#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "runtime/failure.h"

namespace orm {
namespace {

TEST(NumberText, HasFifteenDigitsAndNoMore) {
  EXPECT_EQ(NumberText(0.5), "0.5");
  EXPECT_EQ(NumberText(-3), "-3");
  EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(NumberText(999999999999999.0), "999999999999999");
  EXPECT_EQ(NumberText(0.0001), "0.0001");
}

TEST(NumberText, TurnsToExponentsOutside) {
  EXPECT_EQ(NumberText(1e15), "1E+15");
  EXPECT_EQ(NumberText(1.5e300), "1.5E+300");
  EXPECT_EQ(NumberText(0.00001), "1E-05");
  EXPECT_EQ(NumberText(-1.25e-7), "-1.25E-07");
  EXPECT_EQ(NumberText(0.99999999999999999), "1");  // rounds up to a longer number
}

TEST(NumberText, ReadsBackWithinItsDigits) {
  std::mt19937_64 random(20020315);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-30, 30);
  for (int i = 0; i < 20000; ++i) {
    const double value = mantissa(random) * std::pow(10, exponent(random));
    const auto read = ParseNumber(NumberText(value));
    ASSERT_TRUE(read);
    EXPECT_NEAR(*read, value, std::fabs(value) * 1e-14);
    EXPECT_EQ(NumberText(*read), NumberText(value));
  }
}

// Its 15 digits round up to a number that does not exist: taken, it could not be read back.
TEST(NumberText, EndsWhereItsTextEnds) {
  const double greatest = std::numeric_limits<double>::max();
  EXPECT_THROW(NumberText(greatest), RuntimeFailure);
  EXPECT_FALSE(ParseNumber("1.7976931348623157E+308"));
  EXPECT_EQ(NumberText(1.79769313486231E+308), "1.79769313486231E+308");
  EXPECT_EQ(ParseNumber("1e-400"), 0.0);
  EXPECT_EQ(ParseNumber("-1E-400"), 0.0);
}

TEST(BareNumber, HasSignPlaceAndTrailingBlank) {
  EXPECT_EQ(BareNumber(5), " 5 ");
  EXPECT_EQ(BareNumber(-5), "-5 ");
  EXPECT_EQ(BareNumber(7.5), " 7,5 ");
}

TEST(ParseNumber, TakesNumbersAlone) {
  EXPECT_EQ(ParseNumber(".5"), 0.5);
  EXPECT_EQ(ParseNumber("-3"), -3);
  EXPECT_EQ(ParseNumber("1E+15"), 1e15);
  for (const char* text :
       {"", "-", "1,5", "1.5x", "0x10", "inf", "nan", "1E+999", "--1", "1 2", "#TRUE#"})
    EXPECT_FALSE(ParseNumber(text)) << text;
}

TEST(Cuts, GoDownAndTowardZero) {
  EXPECT_EQ(Int(-1.5), -2);
  EXPECT_EQ(Fix(-1.5), -1);
  EXPECT_EQ(Int(2.999), 2);
}

TEST(CheckedIntegers, FailBeyondTheirBits) {
  EXPECT_EQ(CheckedInt16(-32768), -32768);
  EXPECT_THROW(CheckedInt16(32768), RuntimeFailure);
  EXPECT_EQ(CheckedProduct32(1193, 1800000), 2147400000);
  EXPECT_THROW(CheckedProduct32(1194, 1800000), RuntimeFailure);
  EXPECT_THROW(CheckedInt32(std::nan("")), RuntimeFailure);
}

TEST(FormatPattern, RoundsHalfAwayOnTheText) {
  EXPECT_EQ(FormatPattern(1234.5, "###0.00"), "1234,50");
  EXPECT_EQ(FormatPattern(0.125, "###0.00"), "0,13");
  EXPECT_EQ(FormatPattern(-0.125, "###0.00"), "-0,13");
  EXPECT_EQ(FormatPattern(1.005, "0.00"), "1,01");  // its 15 digits are 1.005
  EXPECT_EQ(FormatPattern(0.5, "####.00"), ",50");
  EXPECT_EQ(FormatPattern(999.995, "#,##0.00"), "1.000,00");
  EXPECT_EQ(FormatPattern(1234567, "#,##0.##"), "1.234.567");
  EXPECT_EQ(FormatPattern(-0.0001, "0.00"), "0,00");  // no minus on a zero
  EXPECT_EQ(FormatPattern(1e20, "0"), "100000000000000000000");
  EXPECT_THROW(FormatPattern(std::numeric_limits<double>::infinity(), "0"), RuntimeFailure);
}

TEST(RoundOnText, AgreesWithTheShownDigits) {
  EXPECT_EQ(RoundOnText(1.005, 2), 1.01);
  EXPECT_EQ(RoundOnText(-2.5, 0), -3);
}

}  // namespace
}  // namespace orm
