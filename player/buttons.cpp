#include "player/buttons.h"

#include <array>
#include <utility>

namespace orvane {
namespace {

constexpr std::array<std::pair<Answer, std::string_view>, 4> names = {
    {{Answer::OK, "OK"}, {Answer::Cancel, "Cancel"}, {Answer::Yes, "Yes"}, {Answer::No, "No"}}};

}  // namespace

std::string_view buttonName(Answer button) {
  for (const auto& [known, name] : names)
    if (known == button) return name;
  return {};
}

std::optional<Answer> buttonNamed(std::string_view name) {
  for (const auto& [button, known] : names)
    if (known == name) return button;
  return std::nullopt;
}

std::vector<Answer> buttonsOf(BoxStyle style) {
  if (style == BoxStyle::OkCancel) return {Answer::OK, Answer::Cancel};
  if (style == BoxStyle::YesNo) return {Answer::Yes, Answer::No};
  return {Answer::OK};
}

}  // namespace orvane
