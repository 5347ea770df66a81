#include "player/one_run.h"

#include "player/script_parser.h"

namespace orvane {

std::vector<Script> parsed(const std::vector<ScriptText>& texts) {
  std::vector<Script> scripts;
  for (const auto& [name, text] : texts) scripts.push_back(parseScript(name, text));
  return scripts;
}

int playOneRun(const std::vector<Script>& scripts, std::ostream& out, std::ostream& err, PlayerParts parts,
               bool keepGoing) {
  ScriptPlayer player(out, err, parts, keepGoing);
  const bool allDone = player.play(scripts);
  if (player.hasUnsavedSheets()) return status::notSaved;
  return allDone ? status::done : status::notAllDone;
}

}  // namespace orvane
