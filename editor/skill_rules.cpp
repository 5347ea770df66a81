#include "editor/skill_rules.h"

#include <algorithm>

#include "editor/pools.h"

namespace orvane {

bool isNamedByUser(double key) { return std::count(namedKeys.begin(), namedKeys.end(), key) != 0; }

LevelLimits levelLimits(const clsSkill& skill, bool ofProfile) {
  if (!ofProfile) return {static_cast<double>(skill.iStart), highestLevel};
  if (skill.iKey == martialSkillKey) return {martialSkillLevel, highestMartialSkillLevel};
  return {profileSkillLevel, highestProfileSkillLevel};
}

double profileSkillCost(std::int16_t iStart) { return iStart < profileSkillLevel ? profileSkillLevel - iStart : 0.0; }

SkillCounts::SkillCounts(const std::vector<std::shared_ptr<clsProfil>>& profiles) {
  for (const auto& profile : profiles)
    for (const double key : profile->colSkillPro) ++counts_[key];
}

int SkillCounts::operator()(std::int16_t iKey) const {
  const auto found = counts_.find(iKey);
  return found == counts_.end() ? 0 : found->second;
}

}  // namespace orvane
