#pragma once

#include <cstddef>
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

// Cuts the bytes of a rich text file into tokens. Binary data is passed over; so are control bytes other than tabs.
class RtfScanner {
 public:
  // The bytes outlive the scanner and the words of its tokens.
  explicit RtfScanner(std::string_view bytes) : rest_(bytes) {}

  RtfToken next();

 private:
  std::optional<RtfToken> afterBackslash();
  std::optional<RtfToken> hexByte();
  RtfToken word();
  std::optional<std::int32_t> parameter();
  void drop(std::size_t count);

  std::string_view rest_;
};

}  // namespace orvane
