#pragma once

#include <string>
#include <string_view>

namespace orvane::test {

// A UTF-8 text of Latin letters as the bytes of a data file.
inline std::string ansi(std::string_view utf8) {
  std::string bytes;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto code = static_cast<unsigned char>(utf8[i]);
    if (code == 0xC2 || code == 0xC3)
      bytes += static_cast<char>((code & 0x03u) << 6 | (static_cast<unsigned char>(utf8[++i]) & 0x3Fu));
    else
      bytes += utf8[i];
  }
  return bytes;
}

}  // namespace orvane::test
