#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "data/records.h"

// The numbers and the arithmetic of the skill pool.
namespace orvane {

// The code of a profile that stands for the skill of the favourite vehicle.
inline constexpr std::int16_t vehicleCode = 101;
inline constexpr std::int16_t martialSkillKey = 58;
inline constexpr std::array<std::int16_t, 4> namedKeys{56, 57, 59, 60};
// The pool that a profile starts from.
inline constexpr double skillPoolBase = 80;
// The levels that a profile brings, and with the second as many martial-art points.
inline constexpr double profileSkillLevel = 1;
inline constexpr double martialSkillLevel = 10;
// Taken on top for the level 10 of the martial-arts skill of a profile.
inline constexpr double martialSkillExtraCost = 9;
// What the pool gains without a mutant power, and by having it drawn.
inline constexpr double pointsWithoutPower = 20;
inline constexpr double pointsForDraw = 5;

// Both included. A non-profile skill starts at its base value, which may lie above its highest level.
struct LevelLimits {
  double lowest;
  double highest;
};
LevelLimits levelLimits(const clsSkill& skill, bool ofProfile);

// What a profile skill costs; nothing is paid back for a base value above 1.
double profileSkillCost(std::int16_t iStart);

// How often the profiles name a skill.
int occurrences(const std::vector<std::shared_ptr<clsProfil>>& profiles, std::int16_t iKey);

// Of one of the four skills that stand for what the user names.
bool isNamedByUser(double key);

}  // namespace orvane
