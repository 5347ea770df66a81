#include "data/data_file.h"

#include <utility>

namespace orvane {

DataFile::DataFile(std::string name, std::string bytes)
    : name_(std::move(name)), bytes_(std::move(bytes)), rest_(bytes_) {
  if (bytes_.empty()) RecordLine(name_, number_, {}).fail("fichier vide : attendu une ligne de titre.");
  cutLine();
}

std::optional<RecordLine> DataFile::readline() {
  if (rest_.empty()) return std::nullopt;
  return RecordLine(name_, ++number_, cutLine());
}

std::string_view DataFile::cutLine() {
  const auto end = rest_.find('\n');
  std::string_view line = rest_.substr(0, end);
  rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
  if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace orvane
