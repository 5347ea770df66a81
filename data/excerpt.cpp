#include "data/excerpt.h"

#include <algorithm>

#include "data/windows_1252.h"

namespace orvane {
namespace {

constexpr std::size_t longest = 40;

bool isShown(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code >= 0x20 && code != 0x7F && inWindows1252(byte);
}

}  // namespace

std::string excerpt(std::string_view bytes, std::size_t around) {
  if (bytes.empty()) return "rien";
  const std::size_t start = around < longest ? 0 : around - longest / 2;
  const std::size_t end = std::min(start + longest, bytes.size());
  std::string text = start > 0 ? "« …" : "« ";
  for (std::size_t i = start; i < end; ++i)
    text += isShown(bytes[i]) ? fromWindows1252(bytes.substr(i, 1)) : "<" + hexadecimal(bytes[i]) + ">";
  return text + (end < bytes.size() ? "… »" : " »");
}

std::string hexadecimal(char byte) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  const auto code = static_cast<unsigned char>(byte);
  return {digits[code / 16u], digits[code % 16u]};
}

}  // namespace orvane
