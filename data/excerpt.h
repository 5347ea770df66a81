#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

// What stands in a data file, for a message: in French quotes, some 40 characters around a position, with an ellipsis
// where it is shortened. A byte that cannot be shown stands as its hexadecimal code, as in "<0D>".
std::string excerpt(std::string_view bytes, std::size_t around = 0);

// The two hexadecimal digits of a byte.
std::string hexadecimal(char byte);

}  // namespace orvane
