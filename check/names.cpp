#include "check/names.h"

#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::size_t longest = 60;  // characters
constexpr std::size_t mostListed = 5;

}  // namespace

std::string quoted(std::string_view text) { return "« " + shortened(text, longest) + " »"; }

std::string listed(const std::vector<std::string>& texts) {
  const std::size_t shown = texts.size() <= mostListed ? texts.size() : mostListed - 1;
  std::string list;
  for (std::size_t i = 0; i < shown; ++i) list += (i == 0 ? "" : i + 1 == texts.size() ? " et " : ", ") + texts[i];
  return shown == texts.size() ? list : list + " et " + std::to_string(texts.size() - shown) + " autres";
}

std::string foldedName(std::string_view name) {
  std::string folded;
  for (const auto character : charactersOf(lowerCase(name)).value_or(U"")) {
    const bool isBlank = character == U' ' || character == U'\u00A0' || character == U'\t';
    if (!isBlank) appendUtf8(folded, character);
  }
  return folded;
}

}  // namespace orvane
