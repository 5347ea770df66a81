#pragma once

#include <ostream>
#include <vector>

#include "player/one_run.h"
#include "player/table.h"

namespace orvane {

struct TableOptions {
  bool keepGoing = false;  // behind a row that was not played as wished
  int jobs = 1;            // rows at a time, in a process each
};

// Plays the scripts in a run of its own for each row, its cells in the place of their placeholders. Transcripts come in
// the order of the rows; err names each row that was not played as wished. Gives the worst exit status. Throws a
// ScriptError before anything is played: for an unknown column and, unless it keeps going, for a row with which a
// script cannot be parsed.
int playTable(const Table& table, const std::vector<ScriptText>& scripts, TableOptions options, std::ostream& out,
              std::ostream& err, PlayerParts parts);

}  // namespace orvane
