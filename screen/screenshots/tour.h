#pragma once

#include <string>

#include "screen/screenshots/album.h"

namespace orvane {

// Opens the program in the current directory, which holds the data files, plays the script up to its sheet and takes a
// picture of every tab, window and dialog. Throws std::runtime_error when something on the way is not there.
void takeTour(const std::string& script, const Album& album);

}  // namespace orvane
