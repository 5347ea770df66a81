#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orvane {

// A colour as the system writes it: 0xBBGGRR, or a system colour from 0x80000000 up.
enum class Colour : std::uint32_t {
  WindowBackground = 0x80000005,
  WindowText = 0x80000008,
  ButtonFace = 0x8000000F,
  Red = 0x0000FF,
  Green = 0x00C000,
  EssentialBroken = 0xC0C0FF,
  AccessoryBroken = 0xC0FFFF,
};

// The value of one property of a control.
using Value = std::variant<std::string, int, bool, float, Colour>;

// As scripts and transcripts write it: texts quoted and escaped, True and False, colours in hexadecimal.
std::string shownValue(const Value& value);
std::string quoted(std::string_view text);
std::string colourText(Colour colour);

struct Property {
  std::string_view name;
  Value value;
};

using PropertyList = std::vector<Property>;

}  // namespace orvane
