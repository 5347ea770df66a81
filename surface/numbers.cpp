#include "surface/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "surface/failure.h"
#include "surface/text.h"

namespace orvane {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// What nearly all numbers are: up to nine digits and nothing else.
std::optional<int> plainWholeNumber(std::string_view text) {
  constexpr std::size_t most = 9;
  if (text.empty() || text.size() > most || !std::all_of(text.begin(), text.end(), isDigit)) return std::nullopt;
  int number = 0;
  for (const char digit : text) number = 10 * number + (digit - '0');
  return number;
}

// Reads a number from the left of a text and collects its characters without the blanks inside.
class NumberScanner {
 public:
  explicit NumberScanner(std::string_view text) : rest_(text) {}

  std::string scan() {
    while (peek() == ' ') rest_.remove_prefix(1);
    take('+', '-');
    int count = digits();
    if (take('.', '.')) count += digits();
    if (count == 0) return {};
    exponent();
    if (number_.front() == '+') number_.erase(0, 1);
    return number_;
  }

 private:
  char peek(std::size_t ahead = 0) const { return ahead < rest_.size() ? rest_[ahead] : '\0'; }

  bool take(char one, char other) {
    if (rest_.empty() || (peek() != one && peek() != other)) return false;
    number_ += peek();
    rest_.remove_prefix(1);
    return true;
  }

  int digits() {
    int count = 0;
    for (;;) {
      const std::size_t blanks = count > 0 ? std::min(rest_.find_first_not_of(' '), rest_.size()) : 0;
      if (!isDigit(peek(blanks))) return count;
      rest_.remove_prefix(blanks);
      number_ += peek();
      rest_.remove_prefix(1);
      ++count;
    }
  }

  void exponent() {
    if (peek() != 'e' && peek() != 'E') return;
    const bool isSigned = peek(1) == '+' || peek(1) == '-';
    if (!isDigit(peek(isSigned ? 2 : 1))) return;
    take('e', 'E');
    take('+', '-');
    digits();
  }

  std::string_view rest_;
  std::string number_;
};

// The power of ten of the first digit that is not 0: what is out of range is too large or too small by it.
long magnitude(std::string_view number) {
  const auto mark = std::min(number.find_first_of("eE"), number.size());
  const auto mantissa = number.substr(0, mark);
  const auto point = std::min(mantissa.find('.'), mantissa.size());
  const auto first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
  long exponent = 0;
  if (mark < number.size()) {
    const auto digits = number.substr(mark + (number[mark + 1] == '+' ? 2 : 1));
    if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec != std::errc())
      exponent = digits.front() == '-' ? -1000000 : 1000000;
  }
  return exponent + static_cast<long>(point) - static_cast<long>(first);
}

double parsed(std::string_view number) {
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range && magnitude(number) > 0)
    return number.front() == '-' ? -HUGE_VAL : HUGE_VAL;
  return value;
}

}  // namespace

double numericPrefix(std::string_view text) {
  if (const auto whole = plainWholeNumber(text)) return *whole;
  const std::string number = NumberScanner(text).scan();
  return number.empty() ? 0 : parsed(number);
}

double strictNumber(std::string_view text) {
  if (const auto whole = plainWholeNumber(text)) return *whole;
  const std::string content = trimmed(text);
  std::string_view number = content;
  const bool plus = !number.empty() && number.front() == '+';
  if (plus) number.remove_prefix(1);
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc() || result.ptr != number.data() + number.size() || !std::isfinite(value) ||
      (plus && number.front() == '-'))
    throw Failure("« " + std::string(text) + " » n'est pas un nombre.");
  return value;
}

std::int16_t toInt16(double value) {
  const double whole = std::nearbyint(value);
  if (!(whole >= std::numeric_limits<std::int16_t>::min() && whole <= std::numeric_limits<std::int16_t>::max()))
    throw Failure("Un nombre sort des limites -32768 à 32767.");
  return static_cast<std::int16_t>(whole);
}

std::string numberText(double value) {
  if (!std::isfinite(value)) throw Failure("Un nombre est trop grand pour être écrit.");
  double whole = std::nearbyint(value);
  if (whole == 0) whole = 0;  // no "-0"
  std::array<char, 400> text;
  const auto result = std::to_chars(text.data(), text.data() + text.size(), whole, std::chars_format::fixed, 0);
  return {text.data(), result.ptr};
}

}  // namespace orvane
