#include "shell/rtf_characters.h"

#include "data/windows_1252.h"
#include "surface/text.h"

namespace orvane {

std::string byteText(char byte) {
  if (inWindows1252(byte)) return fromWindows1252({&byte, 1});
  std::string text;
  appendUtf8(text, replacementCharacter);
  return text;
}

}  // namespace orvane
