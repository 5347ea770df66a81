#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvane {

struct RtfToken {
  enum class Kind { Open, Close, Word, Byte, End };
  Kind kind = Kind::End;
  std::string_view word;                  // of a Word, without backslash and parameter; a symbol is a word of one byte
  std::optional<std::int32_t> parameter;  // of a Word; cut to what fits
  char byte = 0;                          // of a Byte: one character of text in the code page, never a line end
};

// Cuts the next token off the bytes of a rich text file. Binary data is passed over; so are control bytes but tabs.
RtfToken nextRtfToken(std::string_view& rest);

}  // namespace orvane
