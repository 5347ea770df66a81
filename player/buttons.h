#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "surface/world.h"

namespace orvane {

// The buttons of message boxes, by the names that scripts and transcripts use.
std::string_view buttonName(Answer button);
std::optional<Answer> buttonNamed(std::string_view name);

// In their order on the box.
std::vector<Answer> buttonsOf(BoxStyle style);

}  // namespace orvane
