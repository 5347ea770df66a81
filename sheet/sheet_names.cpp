#include "sheet/sheet_names.h"

namespace orvane {
namespace {

constexpr std::size_t longestFileName = 255;  // bytes
// No suffix is longer: where a goal has room, what a save works with has.
constexpr std::size_t suffixLength = 6;

bool isControl(const std::string& name, std::size_t i) {
  const auto byte = static_cast<unsigned char>(name[i]);
  const auto next = static_cast<unsigned char>(i + 1 < name.size() ? name[i + 1] : 0);
  // U+0080 to U+009F are two bytes.
  return byte < 0x20 || byte == 0x7F || (byte == 0xC2 && next >= 0x80 && next < 0xA0);
}

bool hasControl(const std::string& name) {
  for (std::size_t i = 0; i < name.size(); ++i)
    if (isControl(name, i)) return true;
  return false;
}

}  // namespace

std::optional<std::string> faultOfFileName(const std::string& name) {
  if (name.find('/') != std::string::npos) return "il contient une barre oblique (/)";
  if (hasControl(name)) return "il contient un caractère de contrôle";
  if (name.size() + suffixLength > longestFileName) return "il est trop long";
  return std::nullopt;
}

std::string sideName(const std::string& name, std::size_t side, const char* suffix) {
  return name + '_' + std::to_string(side + 1) + suffix;
}

std::string goalOf(const std::string& name, std::size_t side) {
  return std::string(sheetFolder) + '/' + sideName(name, side, ".bmp");
}

std::string paperGoalOf(const std::string& name) { return std::string(sheetFolder) + '/' + name + ".pdf"; }

}  // namespace orvane
