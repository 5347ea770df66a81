#include "data/data_file.h"

#include <utility>

#include "surface/text.h"

namespace orvane {

DataFile::DataFile(std::string name, std::string bytes)
    : name_(std::move(name)), bytes_(std::move(bytes)), rest_(bytes_) {
  if (bytes_.empty()) RecordLine(name_, number_, {}).fail("fichier vide : attendu une ligne de titre.");
  cutLine(rest_);
}

std::optional<RecordLine> DataFile::readline() {
  if (rest_.empty()) return std::nullopt;
  return RecordLine(name_, ++number_, cutLine(rest_));
}

}  // namespace orvane
