#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "player/script_player.h"

namespace orvane {

// Plays what the command line, without the name of the program, asks for: scripts, "-" or none for standard input, of
// largestFile bytes at most, one after another in one run, or in one run for each row of a table. Both are read through
// the files of the parts; out gets the transcript, err what is to be told besides. Gives the exit status: 0 all acts
// were done; 1 some were not as wished; 2 the command line is wrong or a script or table cannot be read or parsed,
// which is told on err before anything is played; 3 the files of some sheet could not be saved, whatever else there
// was.
int playScripts(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err,
                PlayerParts parts);

}  // namespace orvane
