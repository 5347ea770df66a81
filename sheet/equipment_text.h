#pragma once

#include <string>

namespace orvane {

// What every sworn officer is issued, with markers between its lines.
std::string equipmentText();

}  // namespace orvane
