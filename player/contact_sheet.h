#pragma once

#include <ostream>
#include <string>

#include "player/script_player.h"

namespace orvane {

// Puts all sheets that were saved into one PDF, whole or not at all, in the place of what bears its name. Tells on err
// why it is not there. Gives the exit status for that.
int saveContactSheet(const std::string& file, const std::vector<PrintedSheet>& sheets, std::ostream& err,
                     PlayerParts parts);

}  // namespace orvane
