#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "data/records.h"

// The skills with a rule of their own, and the arithmetic of the skill pool.
namespace orvane {

// The code of a profile that stands for the skill of the favourite vehicle.
inline constexpr std::int16_t vehicleCode = 101;
inline constexpr std::int16_t martialSkillKey = 58;
// The skills that stand for what the user names.
inline constexpr std::array<std::int16_t, 4> namedKeys{56, 57, 59, 60};
bool isNamedByUser(double key);

// Both included. A non-profile skill starts at its base value, which may lie above its highest level.
struct LevelLimits {
  double lowest;
  double highest;
};
LevelLimits levelLimits(const clsSkill& skill, bool ofProfile);

// What a profile skill costs; nothing is paid back for a base value above 1.
double profileSkillCost(std::int16_t iStart);

// How often profiles name each skill.
class SkillCounts {
 public:
  explicit SkillCounts(const std::vector<std::shared_ptr<clsProfil>>& profiles);
  int operator()(std::int16_t iKey) const;

 private:
  std::unordered_map<double, int> counts_;
};

}  // namespace orvane
