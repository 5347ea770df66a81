#include "data/data_file.h"

#include <utility>

#include "surface/text.h"

namespace orvane {

DataFile::DataFile(Reading& reading, std::string_view name, std::string bytes)
    : reading_(reading), name_(name), bytes_(std::move(bytes)), rest_(bytes_) {
  if (bytes_.empty()) RecordLine(reading_, name_, number_, {}).fault(FaultKind::EmptyFile);
  cutLine(rest_);
}

std::optional<RecordLine> DataFile::readline() {
  if (rest_.empty()) return std::nullopt;
  return RecordLine(reading_, name_, ++number_, cutLine(rest_));
}

}  // namespace orvane
