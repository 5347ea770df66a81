#include "data/data_file.h"

#include <utility>

#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::string_view endsNoLine("\r\0", 2);

}  // namespace

DataFile::DataFile(Reading& reading, std::string_view name, std::string bytes)
    : reading_(reading), name_(name), bytes_(std::move(bytes)), rest_(bytes_) {
  RecordLine title(reading_, name_, number_, {});
  if (bytes_.empty()) title.fault(FaultKind::EmptyFile);
  // It would pass for a title with no record behind it.
  if (bytes_.find('\n') == std::string::npos && bytes_.find_first_of(endsNoLine) != std::string::npos)
    title.fault(FaultKind::NoLineEnd, bytes_);
  cutLine(rest_);
}

std::optional<RecordLine> DataFile::readline() {
  if (rest_.empty()) return std::nullopt;
  return RecordLine(reading_, name_, ++number_, cutLine(rest_));
}

}  // namespace orvane
