#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// The code page of the data files: one byte a character.
namespace orvane {

// One of those that mean the same in UTF-8.
bool isAscii(char byte);

// Whether the byte stands for a character; 81, 8D, 8F, 90 and 9D do not.
bool inWindows1252(char byte);

// The position of the first byte, from there on, that stands for none; behind the last one where there is none.
std::size_t firstOutsideWindows1252(std::string_view bytes, std::size_t from = 0);

// The bytes as UTF-8. Every byte must be in the code page.
std::string fromWindows1252(std::string_view bytes);

// The byte for a character; none where the code page lacks it.
std::optional<char> toWindows1252(char32_t character);

}  // namespace orvane
