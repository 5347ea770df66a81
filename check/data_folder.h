#pragma once

#include <set>

#include "check/findings.h"
#include "data/load_data.h"

namespace orvane {

// The data files of a folder, all read to their ends.
struct DataFolder {
  ReferenceData data;
  Technics technics;
  Places places;
  Findings findings;  // what the reader stops or warns at
  std::set<std::string_view> unread;

  bool wasRead(std::string_view file) const { return unread.count(file) == 0; }
};

// The folder as the current one or by its path.
DataFolder readFolder(const std::string& path);

}  // namespace orvane
