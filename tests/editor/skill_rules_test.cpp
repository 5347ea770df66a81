#include "editor/skill_rules.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

std::shared_ptr<clsProfil> profile(std::initializer_list<double> keys) {
  auto made = std::make_shared<clsProfil>();
  for (const double key : keys) made->colSkillPro.Add(key);
  return made;
}

TEST(SkillRules, OnlyBaseValuesBelowOneCost) {
  EXPECT_EQ(profileSkillCost(-2), 3);
  EXPECT_EQ(profileSkillCost(0), 1);
  EXPECT_EQ(profileSkillCost(1), 0);
  EXPECT_EQ(profileSkillCost(3), 0);
}

TEST(SkillRules, LimitsGoByKeyOnlyForProfileSkills) {
  const clsSkill martial{.iKey = 58, .sName = "Arts martiaux", .iStart = 0, .sDescro = ""};
  const clsSkill high{.iKey = 7, .sName = "Vie urbaine", .iStart = 6, .sDescro = ""};
  const auto shown = [](const LevelLimits& limits) {
    return std::to_string(static_cast<int>(limits.lowest)) + ".." + std::to_string(static_cast<int>(limits.highest));
  };
  EXPECT_EQ(shown(levelLimits(martial, true)), "10..99");
  EXPECT_EQ(shown(levelLimits(martial, false)), "0..4");
  EXPECT_EQ(shown(levelLimits(high, true)), "1..8");
  EXPECT_EQ(shown(levelLimits(high, false)), "6..4");
}

TEST(SkillRules, OccurrencesCountWithinAndAcrossProfiles) {
  const std::vector<std::shared_ptr<clsProfil>> profiles{profile({3, 12, 3, 12.5}), profile({12})};
  EXPECT_EQ(occurrences(profiles, 3), 2);
  EXPECT_EQ(occurrences(profiles, 12), 2);
  EXPECT_EQ(occurrences(profiles, 4), 0);
}

}  // namespace
}  // namespace orvane
