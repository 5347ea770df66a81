#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// In French quotes, with an ellipsis where it is long.
std::string quoted(std::string_view text);

// "a, b et c", and how many others where there are many.
std::string listed(const std::vector<std::string>& texts);

// Equal for names that differ by blanks or case only.
std::string foldedName(std::string_view name);

}  // namespace orvane
