#include "shell/rtf_characters.h"

#include "data/windows_1252.h"

namespace orvane {

std::string byteText(char byte) {
  if (inWindows1252(byte)) return fromWindows1252({&byte, 1});
  std::string text;
  appendUtf8(text, replacementCharacter);
  return text;
}

void appendUtf8(std::string& text, char32_t character) {
  const bool surrogate = character >= 0xD800 && character < 0xE000;
  const char32_t c = surrogate || character > 0x10FFFF ? replacementCharacter : character;
  const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0 | (c >> 6));
    tail(0);
  } else if (c < 0x10000) {
    text += static_cast<char>(0xE0 | (c >> 12));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0 | (c >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace orvane
