#include "shell/placement_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "surface/failure.h"
#include "surface/numbers.h"

namespace orvane {

std::string placementText(float twips) {
  std::array<char, 64> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), twips, std::chars_format::fixed).ptr;
  return {digits.data(), end};
}

std::optional<float> placementValue(const std::string& text) {
  try {
    const double value = strictNumber(text);
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) return std::nullopt;
    return static_cast<float>(value);
  } catch (const Failure&) {
    return std::nullopt;
  }
}

}  // namespace orvane
