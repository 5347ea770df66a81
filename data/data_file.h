#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "data/record_line.h"
#include "surface/world.h"

namespace orvane {

// The lines of one data file. They end in LF or CR LF; a last line without a line end counts.
class DataFile {
 public:
  // Opens a file of the current directory and skips its title line. That it is not there, cannot be read or has no
  // such line, being empty or one line of CR or NUL bytes, is a fault.
  DataFile(Reading& reading, Files& files, std::string_view name);
  DataFile(const DataFile&) = delete;
  DataFile& operator=(const DataFile&) = delete;

  // The next line, valid until the next call and as long as the name; nothing behind the last one.
  std::optional<RecordLine> readline();
  // False for one that was not there, or not to be read to its end.
  bool isRead() const { return parts_ != nullptr; }

 private:
  void open(Files& files);
  // Reads on to the end of some line. False behind the last one.
  bool readLines();
  bool readPart();
  void fault(FaultKind kind, std::string_view text = {});

  Reading& reading_;
  std::string_view name_;
  std::unique_ptr<FileParts> parts_;
  std::string bytes_;           // read of late
  std::size_t wholeLines_ = 0;  // how many of these bytes are whole lines
  std::string_view rest_;       // of the whole lines, those still to come
  std::int32_t number_ = 1;
};

}  // namespace orvane
