#pragma once

#include <string>
#include <string_view>

#include "surface/world.h"

namespace orvane {

// Turns each "[return]" into a line end. A failure, which only a lack of memory can be, is told and gives an empty
// text.
std::string prcReturnToCrLf(std::string_view sText, Dialogs& dialogs);

}  // namespace orvane
