#pragma once

#include "editor/numbers_in_controls.h"

namespace orvane {

// The columns of lvwSkillGen behind the name of a skill, all numbers. A row is bold where a profile brought its skill.
struct SkillRow {
  // StartLevel is the level that the application of the profile gave.
  enum Column { Level = 1, Key, StartLevel };
};

}  // namespace orvane
