#pragma once

#include <set>

#include "check/findings.h"
#include "data/load_data.h"

namespace orvane {

// An element in the list of an art.
struct CitedTechnic {
  DataPlace place;
  std::int16_t key;
};

// The data files of a folder, all read to their ends.
struct DataFolder {
  ReferenceData data;
  Technics technics;
  Places places;
  Findings findings;  // what the reader stops or warns at, but for unknown techniques
  std::vector<CitedTechnic> unknownTechnics;
  std::vector<CitedTechnic> repeatedTechnics;  // in one art, from the second time on
  std::set<std::string_view> unread;
  // By file, the keys that may stand in what the reader could not take: of those that something is missing means
  // nothing.
  std::map<std::string_view, std::set<std::int32_t>> doubtfulKeys;

  bool isDoubtful(std::string_view file, double key) const {
    const auto keys = doubtfulKeys.find(file);
    return keys != doubtfulKeys.end() && keys->second.count(static_cast<std::int32_t>(key)) > 0;
  }
  bool wasRead(std::string_view file) const { return unread.count(file) == 0; }
};

// The folder as the current one or by its path.
DataFolder readFolder(const std::string& path);

}  // namespace orvane
