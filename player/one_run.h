#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "player/script_player.h"

namespace orvane {

// How the player ends.
namespace status {
inline constexpr int done = 0;
inline constexpr int notAllDone = 1;
inline constexpr int notPlayed = 2;
inline constexpr int notSaved = 3;
}  // namespace status

// A script as it was read.
struct ScriptText {
  std::string name;
  std::string text;
};

// Throws a ScriptError.
std::vector<Script> parsed(const std::vector<ScriptText>& texts);

// Plays scripts one after another in one run, and gives its exit status.
int playOneRun(const std::vector<Script>& scripts, std::ostream& out, std::ostream& err, PlayerParts parts,
               bool keepGoing);

}  // namespace orvane
