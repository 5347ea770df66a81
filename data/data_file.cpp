#include "data/data_file.h"

#include "surface/failure.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::string_view endsNoLine("\r\0", 2);

}  // namespace

DataFile::DataFile(Reading& reading, Files& files, std::string_view name) : reading_(reading), name_(name) {
  open(files);
  if (!readLines() && isRead()) fault(FaultKind::EmptyFile);
  // It would pass for a title with no record behind it.
  if (rest_.find('\n') == std::string_view::npos && rest_.find_first_of(endsNoLine) != std::string_view::npos)
    fault(FaultKind::NoLineEnd, rest_);
  cutLine(rest_);
}

std::optional<RecordLine> DataFile::readline() {
  if (rest_.empty() && !readLines()) return std::nullopt;
  return RecordLine(reading_, name_, ++number_, cutLine(rest_));
}

void DataFile::open(Files& files) {
  const std::string path = "./" + std::string(name_);
  try {
    if (files.fileExists(path)) parts_ = files.open(path);
  } catch (const Failure& failure) {
    return fault(FaultKind::UnreadableFile, failure.what());
  }
  if (!isRead()) fault(FaultKind::MissingFile);
}

bool DataFile::readLines() {
  bytes_.erase(0, wholeLines_);
  wholeLines_ = 0;
  while (wholeLines_ == 0 && readPart()) {
  }
  rest_ = std::string_view(bytes_).substr(0, wholeLines_);
  return !rest_.empty();
}

bool DataFile::readPart() {
  if (!isRead()) return false;
  try {
    const auto part = parts_->next();
    bytes_ += part;
    const auto end = part.rfind('\n');
    if (end != std::string_view::npos) wholeLines_ = bytes_.size() - part.size() + end + 1;
    if (part.empty()) wholeLines_ = bytes_.size();
    return !part.empty();
  } catch (const Failure& failure) {
    parts_.reset();
    fault(FaultKind::UnreadableFile, failure.what());
    return false;
  }
}

void DataFile::fault(FaultKind kind, std::string_view text) { reading_.fault({kind, {.file = name_}, 1, text}); }

}  // namespace orvane
