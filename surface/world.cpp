#include "surface/world.h"

namespace orvane {

std::string Files::read(const std::string& path) {
  const auto file = open(path);
  std::string bytes;
  bytes.reserve(file->size());
  for (auto part = file->next(); !part.empty(); part = file->next()) bytes += part;
  return bytes;
}

bool Files::holds(const std::string& path, std::string_view bytes) {
  const auto file = open(path);
  for (auto part = file->next(); !part.empty(); part = file->next()) {
    if (!bytes.starts_with(part)) return false;
    bytes.remove_prefix(part.size());
  }
  return bytes.empty();
}

}  // namespace orvane
