#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "surface/world.h"

namespace orvane {

// The command line of the checker, without the name of the program. Reports on out and gives the exit status: 0
// nothing but notes was found; 1 warnings; 2 errors; 3 the command line is wrong, the folder cannot be read or the
// report not be written, which is told on err.
int checkCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err, Pictures& pictures);

}  // namespace orvane
