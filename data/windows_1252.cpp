#include "data/windows_1252.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "surface/text.h"

namespace orvane {
namespace {

// 80 to 9F, the only part where a byte is not its own code point; 0 where there is no character.
constexpr std::array<char16_t, 32> upperControls = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char16_t codePoint(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code >= 0x80 && code < 0xA0 ? upperControls.at(code - 0x80u) : code;
}

bool isAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

// As much room as the characters need that take more than one byte: two, or three among the upper controls.
std::size_t furtherBytes(std::string_view bytes) {
  std::size_t count = 0;
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    count += static_cast<std::size_t>(code >= 0x80) + static_cast<std::size_t>(code >= 0x80 && code < 0xA0);
  }
  return count;
}

// How many bytes ASCII ends behind, looked at by eight.
std::size_t asciiAtStart(std::string_view bytes) {
  constexpr std::uint64_t highBits = 0x8080808080808080;
  std::size_t count = 0;
  for (std::uint64_t eight = 0; count + sizeof eight <= bytes.size(); count += sizeof eight) {
    std::memcpy(&eight, bytes.data() + count, sizeof eight);
    if ((eight & highBits) != 0) break;
  }
  while (count < bytes.size() && isAscii(bytes[count])) ++count;
  return count;
}

}  // namespace

bool inWindows1252(char byte) { return byte == '\0' || codePoint(byte) != 0; }

std::size_t firstOutsideWindows1252(std::string_view bytes, std::size_t from) {
  while (from < bytes.size() && inWindows1252(bytes[from])) from += 1 + asciiAtStart(bytes.substr(from + 1));
  return from;
}

std::string fromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + furtherBytes(bytes));
  while (!bytes.empty()) {
    const auto ascii = asciiAtStart(bytes);
    text.append(bytes.substr(0, ascii));
    bytes.remove_prefix(ascii);
    for (; !bytes.empty() && !isAscii(bytes.front()); bytes.remove_prefix(1))
      appendUtf8(text, codePoint(bytes.front()));
  }
  return text;
}

std::optional<char> toWindows1252(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto found = std::find(upperControls.begin(), upperControls.end(), character);
  if (found == upperControls.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - upperControls.begin()));
}

}  // namespace orvane
