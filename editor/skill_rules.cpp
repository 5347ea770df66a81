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

int occurrences(const std::vector<std::shared_ptr<clsProfil>>& profiles, std::int16_t iKey) {
  int count = 0;
  for (const auto& profile : profiles)
    count += static_cast<int>(std::count(profile->colSkillPro.begin(), profile->colSkillPro.end(), iKey));
  return count;
}

}  // namespace orvane
