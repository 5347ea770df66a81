#include "check/names.h"

#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::size_t longest = 60;  // characters

}  // namespace

std::string quoted(std::string_view text) { return "« " + shortened(text, longest) + " »"; }

std::string foldedName(std::string_view name) {
  std::string folded;
  for (const auto character : charactersOf(lowerCase(name)).value_or(U"")) {
    const bool isBlank = character == U' ' || character == U'\u00A0' || character == U'\t';
    if (!isBlank) appendUtf8(folded, character);
  }
  return folded;
}

}  // namespace orvane
