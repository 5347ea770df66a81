#pragma once

#include <unordered_map>
#include <vector>

#include "check/data_folder.h"

namespace orvane {

// Finds skills by the numbers of a profile's list; none whose key could not be read.
class SkillIndex {
 public:
  explicit SkillIndex(const DataFolder& folder);

  // The positions of all skills with the key.
  const std::vector<std::int32_t>& positionsOf(double key) const;

 private:
  std::unordered_map<std::int16_t, std::vector<std::int32_t>> positions_;
};

}  // namespace orvane
