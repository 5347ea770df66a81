#include "check/skill_index.h"

#include <limits>

#include "data/record_formats.h"

namespace orvane {

SkillIndex::SkillIndex(const DataFolder& folder) {
  const auto& skills = folder.data.colSkill;
  for (std::int32_t i = 1; i <= skills.Count(); ++i)
    if (folder.places.of(skillFormat.file, i, "iKey").isSound) positions_[skills(i).iKey].push_back(i);
}

const std::vector<std::int32_t>& SkillIndex::positionsOf(double key) const {
  using Keys = std::numeric_limits<std::int16_t>;
  static const std::vector<std::int32_t> none;
  if (!(key >= Keys::min() && key <= Keys::max())) return none;
  const auto found = positions_.find(static_cast<std::int16_t>(key));
  return found == positions_.end() || found->first != key ? none : found->second;
}

}  // namespace orvane
