#include "surface/numbers.h"

#include <gtest/gtest.h>

#include "surface/failure.h"

namespace orvane {
namespace {

TEST(Numbers, PrefixIsReadAsFarAsItGoes) {
  EXPECT_EQ(numericPrefix("12abc"), 12);
  EXPECT_EQ(numericPrefix(""), 0);
  EXPECT_EQ(numericPrefix("Autre"), 0);
  EXPECT_EQ(numericPrefix("  -3 ans"), -3);
  EXPECT_EQ(numericPrefix("+4"), 4);
  EXPECT_EQ(numericPrefix("2,5"), 2);
  EXPECT_EQ(numericPrefix("2.5.1"), 2.5);
  EXPECT_EQ(numericPrefix(".5"), 0.5);
  EXPECT_EQ(numericPrefix("."), 0);
  EXPECT_EQ(numericPrefix("1 0 0 x"), 100);
  EXPECT_EQ(numericPrefix("1e2"), 100);
  EXPECT_EQ(numericPrefix("3e"), 3);
  EXPECT_EQ(numericPrefix("3e+"), 3);
  EXPECT_EQ(numericPrefix("1e-999"), 0);
  EXPECT_EQ(numericPrefix("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(numericPrefix("1e-99999999999999999999"), 0);
  EXPECT_GT(numericPrefix(std::string(400, '9') + "e-5"), 1e300);
  EXPECT_GT(numericPrefix("1e999"), 1e300);
  EXPECT_LT(numericPrefix("-1e999"), -1e300);
  EXPECT_THROW(numberText(numericPrefix("1e999")), Failure);
}

TEST(Numbers, StrictTakesTheWholeTextOrFails) {
  EXPECT_EQ(strictNumber(" 12 "), 12);
  EXPECT_EQ(strictNumber("+2.5"), 2.5);
  for (const char* text : {"", " ", "3;", "12abc", "2,5", "+-3", "inf", "nan", "1e999"})
    EXPECT_THROW(strictNumber(text), Failure) << text;
}

TEST(Numbers, SixteenBitsRoundHalvesToEvenAndAreChecked) {
  EXPECT_EQ(toInt16(2.5), 2);
  EXPECT_EQ(toInt16(3.5), 4);
  EXPECT_EQ(toInt16(-2.5), -2);
  EXPECT_EQ(toInt16(32767.4), 32767);
  EXPECT_THROW(toInt16(32767.5), Failure);
  EXPECT_THROW(toInt16(-32769), Failure);
}

TEST(Numbers, TextIsAPlainWholeNumber) {
  EXPECT_EQ(numberText(-3), "-3");
  EXPECT_EQ(numberText(-0.2), "0");
  EXPECT_EQ(numberText(1e15), "1000000000000000");
}

}  // namespace
}  // namespace orvane
