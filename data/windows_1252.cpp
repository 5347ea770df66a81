#include "data/windows_1252.h"

#include <algorithm>
#include <array>

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

}  // namespace

bool inWindows1252(char byte) { return byte == '\0' || codePoint(byte) != 0; }

std::string fromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes)
    if (static_cast<unsigned char>(byte) < 0x80)
      text += byte;
    else
      appendUtf8(text, codePoint(byte));
  return text;
}

std::optional<char> toWindows1252(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto found = std::find(upperControls.begin(), upperControls.end(), character);
  if (found == upperControls.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - upperControls.begin()));
}

}  // namespace orvane
