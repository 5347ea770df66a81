#pragma once

#include <vector>

#include "check/finding.h"
#include "surface/world.h"

namespace orvane {

// All that is wrong with the data files of a folder, sorted by place; with its sheets, where asked for, in the font of
// the pictures.
std::vector<Finding> checkFolder(const std::string& path, Pictures& pictures, bool withSheets);

}  // namespace orvane
