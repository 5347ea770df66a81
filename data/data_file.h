#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/record_line.h"

namespace orvane {

// The lines of one data file. They end in LF or CR LF; a last line without a line end counts.
class DataFile {
 public:
  // Skips the title line. That there is none, in an empty file or in one line of CR or NUL bytes, is a fault.
  DataFile(Reading& reading, std::string_view name, std::string bytes);
  DataFile(const DataFile&) = delete;
  DataFile& operator=(const DataFile&) = delete;

  // The next line, valid as long as this object and its name; nothing behind the last one.
  std::optional<RecordLine> readline();

 private:
  Reading& reading_;
  std::string_view name_;
  std::string bytes_;
  std::string_view rest_;
  std::int32_t number_ = 1;
};

}  // namespace orvane
