#pragma once

#include <string>
#include <string_view>

namespace orvane {

// In French quotes, with an ellipsis where it is long.
std::string quoted(std::string_view text);

// The same for names that differ by blanks or case only.
std::string foldedName(std::string_view name);

}  // namespace orvane
