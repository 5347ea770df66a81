#include "data/windows_1252.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

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

// A byte each of eight.
constexpr std::uint64_t oneEach = 0x0101010101010101;
constexpr std::uint64_t highBit = 0x80 * oneEach;

std::uint64_t firstEight(std::string_view bytes) {
  std::uint64_t eight = 0;
  std::memcpy(&eight, bytes.data(), sizeof eight);
  return eight;
}

bool startsWithEightOfAscii(std::string_view bytes) {
  return bytes.size() >= sizeof(std::uint64_t) && (firstEight(bytes) & highBit) == 0;
}

// Gives the place behind the one to three bytes.
char* putUtf8(char16_t character, char* place) {
  const auto put = [&place](unsigned byte) { *place++ = static_cast<char>(byte); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0U | character >> 6);
    put(0x80U | (character & 0x3FU));
  } else {
    put(0xE0U | character >> 12);
    put(0x80U | (character >> 6 & 0x3FU));
    put(0x80U | (character & 0x3FU));
  }
  return place;
}

// How many bytes are no ASCII, and how many of them are among the upper controls, the only ones that may be no
// character or take three bytes of UTF-8.
struct Share {
  std::size_t beyondAscii = 0;
  std::size_t upperControls = 0;
};

Share shareOf(std::string_view bytes) {
  Share share;
  const auto countOf = [](std::uint64_t highBits) { return static_cast<std::size_t>((highBits >> 7) * oneEach >> 56); };
  for (; bytes.size() >= sizeof(std::uint64_t); bytes.remove_prefix(sizeof(std::uint64_t))) {
    const std::uint64_t eight = firstEight(bytes);
    const std::uint64_t beyond = eight & highBit;
    if (beyond == 0) continue;
    share.beyondAscii += countOf(beyond);
    share.upperControls += countOf(beyond & ~(eight << 1) & ~(eight << 2));
  }
  for (const char byte : bytes) {
    share.beyondAscii += !isAscii(byte);
    share.upperControls += (byte & 0xE0) == 0x80;
  }
  return share;
}

}  // namespace

bool isAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

bool inWindows1252(char byte) { return byte == '\0' || codePoint(byte) != 0; }

std::size_t firstOutsideWindows1252(std::string_view bytes, std::size_t from) {
  if (shareOf(bytes.substr(from)).upperControls == 0) return bytes.size();
  while (from < bytes.size() && inWindows1252(bytes[from])) ++from;
  return from;
}

std::string fromWindows1252(std::string_view bytes) {
  const Share share = shareOf(bytes);
  if (share.beyondAscii == 0) return std::string(bytes);
  std::string text(bytes.size() + share.beyondAscii + share.upperControls, '\0');
  char* end = text.data();
  while (!bytes.empty()) {
    if (startsWithEightOfAscii(bytes)) {
      end = std::copy_n(bytes.data(), 8, end);
      bytes.remove_prefix(8);
    } else {
      end = putUtf8(codePoint(bytes.front()), end);
      bytes.remove_prefix(1);
    }
  }
  text.resize(static_cast<std::size_t>(end - text.data()));
  return text;
}

std::optional<char> toWindows1252(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto found = std::find(upperControls.begin(), upperControls.end(), character);
  if (found == upperControls.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - upperControls.begin()));
}

}  // namespace orvane
