#pragma once

#include <initializer_list>
#include <string>

#include "data/reference_data.h"

namespace orvane::test {

// A game that is small enough to compute by hand. Skill n has the key n; its base value is 2 where nothing else is
// said; key 101 stands last. The vehicles are skills 18, 16 and 44.
ReferenceData smallGame();

}  // namespace orvane::test
