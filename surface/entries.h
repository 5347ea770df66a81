#pragma once

#include <functional>
#include <string>

#include "surface/control.h"

namespace orvane {

// The 0-based position of the first entry with exactly that text, or of that 0-based position; refuses what is not
// there.
int entryPosition(const Control& control, const Entry& entry, int count, const std::function<std::string(int)>& text);

}  // namespace orvane
