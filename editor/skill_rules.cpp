#include "editor/skill_rules.h"

#include <algorithm>

namespace orvane {

LevelLimits levelLimits(const clsSkill& skill, bool ofProfile) {
  if (!ofProfile) return {static_cast<double>(skill.iStart), 4};
  if (skill.iKey == martialSkillKey) return {martialSkillLevel, 99};
  return {profileSkillLevel, 8};
}

double profileSkillCost(std::int16_t iStart) { return iStart < 1 ? 1.0 - iStart : 0.0; }

int occurrences(const std::vector<std::shared_ptr<clsProfil>>& profiles, std::int16_t iKey) {
  int count = 0;
  for (const auto& profile : profiles)
    count += static_cast<int>(std::count(profile->colSkillPro.begin(), profile->colSkillPro.end(), iKey));
  return count;
}

bool isNamedByUser(double key) { return std::count(namedKeys.begin(), namedKeys.end(), key) != 0; }

}  // namespace orvane
