#pragma once

#include <string>

namespace orvane {

// Stands for what no character can be made of.
inline constexpr char32_t replacementCharacter = 0xFFFD;

// The character of a byte of the code page Windows-1252, as UTF-8; the replacement character where it has none.
std::string byteText(char byte);

}  // namespace orvane
