#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Numbers in the texts of controls and data files. The decimal separator is "." whatever the locale.
namespace orvane {

// The number that a text begins with, 0 where there is none: "12abc" is 12, "" and "Autre" are 0, "2,5" is 2.
// Leading blanks are skipped, blanks between digits are ignored. What is too large for a double is infinite.
double numericPrefix(std::string_view text);

// The whole text as a number, blanks at its ends apart; fails where it is none.
double strictNumber(std::string_view text);

// The nearest whole number, an exact half going to the even neighbour; fails outside -32768 to 32767.
std::int16_t toInt16(double value);

// A plain whole number: "-" for a negative, no "+", no grouping. Fails with an infinite one.
std::string numberText(double value);

}  // namespace orvane
