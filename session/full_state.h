#pragma once

#include <string>

#include "surface/desktop.h"

namespace orvane {

// All that the loaded forms hold, as a transcript would show it: windows, controls, entries, the focus, what is printed
// on sheets and what they lost.
std::string fullState(const Desktop& desktop);

}  // namespace orvane
