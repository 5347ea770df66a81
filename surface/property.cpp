#include "surface/property.h"

#include <array>
#include <charconv>
#include <type_traits>

namespace orvane {

std::string quoted(std::string_view text) {
  std::string shown = "\"";
  for (char c : text) {
    switch (c) {
      case '"':
        shown += "\\\"";
        break;
      case '\\':
        shown += "\\\\";
        break;
      case '\n':
        shown += "\\n";
        break;
      case '\r':
        shown += "\\r";
        break;
      case '\t':
        shown += "\\t";
        break;
      default:
        shown += c;
    }
  }
  return shown + '"';
}

std::string colourText(Colour colour) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  auto rest = static_cast<std::uint32_t>(colour);
  std::string shown;
  do shown.insert(shown.begin(), digits[rest % 16]);
  while (rest /= 16);
  return shown;
}

namespace {

struct Shown {
  std::string operator()(const std::string& text) const { return quoted(text); }
  std::string operator()(int number) const { return std::to_string(number); }
  std::string operator()(bool truth) const { return truth ? "True" : "False"; }
  std::string operator()(Colour colour) const { return colourText(colour); }
  std::string operator()(float number) const {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return {digits.data(), end};
  }
};

}  // namespace

std::string shownValue(const Value& value) { return std::visit(Shown{}, value); }

}  // namespace orvane
