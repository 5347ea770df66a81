#include "surface/numbers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

#include "surface/failure.h"

namespace orvane {
namespace {

TEST(Numbers, PrefixIsReadAsFarAsItGoes) {
  std::ostringstream read;
  for (const std::string text :
       {"12abc", "Autre", "  -3 ans", "+4", "2,5", "2.5.1", ".5", ".", "1 0 0 x", "1E2", "3e", "3e+", "1e-999"})
    read << numericPrefix(text) << ' ';
  EXPECT_EQ(read.str(), "12 0 -3 4 2 2.5 0.5 0 100 100 3 3 0 ");
  EXPECT_EQ(numericPrefix("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(numericPrefix("1e-99999999999999999999"), 0);
  EXPECT_EQ(numericPrefix(std::string(400, '9') + "e-5"), HUGE_VAL);
  EXPECT_EQ(numericPrefix("-1e+999"), -HUGE_VAL);
}

TEST(Numbers, StrictTakesTheWholeTextOrFails) {
  EXPECT_EQ(strictNumber(" +2.5 "), 2.5);
  for (const char* text : {" ", "3;", "12abc", "2,5", "+-3", "inf", "nan", "1e999"})
    EXPECT_THROW(strictNumber(text), Failure) << text;
}

TEST(Numbers, SixteenBitsRoundHalvesToEvenAndAreChecked) {
  EXPECT_EQ(toInt16(2.5), 2);
  EXPECT_EQ(toInt16(-3.5), -4);
  EXPECT_EQ(toInt16(32767.4), 32767);
  EXPECT_THROW(toInt16(32767.5), Failure);
  EXPECT_THROW(toInt16(-32769), Failure);
}

TEST(Numbers, TextIsAPlainWholeNumber) {
  EXPECT_EQ(numberText(-0.2), "0");
  EXPECT_EQ(numberText(-1e15), "-1000000000000000");
  EXPECT_THROW(numberText(HUGE_VAL), Failure);
}

}  // namespace
}  // namespace orvane
