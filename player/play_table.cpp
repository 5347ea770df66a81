#include "player/play_table.h"

#include <algorithm>
#include <sstream>

#include "player/filled_script.h"
#include "player/ordered_runs.h"
#include "player/script_parser.h"

namespace orvane {
namespace {

// The scripts of a run for each row of a table; a row whose scripts cannot be parsed has none and says why.
struct RowScripts {
  std::vector<Script> scripts;
  std::string fault;
};

RowScripts scriptsOf(const Table& table, const Table::Row& row, const std::vector<ScriptText>& texts) {
  std::vector<ScriptText> filled;
  for (const auto& [name, text] : texts) filled.push_back({name, filledScript(text, table, row)});
  try {
    return {parsed(filled), {}};
  } catch (const ScriptError& error) {
    return {{}, error.message};
  }
}

std::string placeOf(const Table& table, std::size_t row) {
  return table.file + ":" + std::to_string(table.rows[row].line) + ": ";
}

// Parsed for that alone: the scripts of all rows at once would need as much memory as there are rows.
void requireAllParsed(const Table& table, const std::vector<ScriptText>& texts) {
  for (std::size_t row = 0; row < table.rows.size(); ++row)
    if (const auto fault = scriptsOf(table, table.rows[row], texts).fault; !fault.empty())
      throw ScriptError{placeOf(table, row) + fault};
}

RunResult playRow(const RowScripts& row, PlayerParts parts) {
  RunResult result;
  if (!row.fault.empty()) return {status::notAllDone, {}, row.fault + "\n", {}};
  std::ostringstream out, err;
  if (parts.savedSheets) parts.savedSheets = &result.sheets;
  result.status = playOneRun(row.scripts, out, err, parts, false);
  result.transcript = out.str();
  result.notices = err.str();
  return result;
}

std::string_view wordsOn(int ended) {
  return ended == status::notSaved ? "la feuille n'a pas pu être sauvée en entier"
                                   : "la ligne n'a pas été jouée comme il fallait";
}

class NoProgress : public Progress {
  void show(std::size_t, std::size_t) override {}
  void hide() override {}
};

}  // namespace

int playTable(const Table& table, const std::vector<ScriptText>& texts, TableOptions options, std::ostream& out,
              std::ostream& err, PlayerParts parts) {
  for (const auto& [name, text] : texts) requireColumnsOf(table, name, text);
  if (!options.keepGoing) requireAllParsed(table, texts);
  NoProgress none;
  Progress& progress = parts.progress ? *parts.progress : none;
  int worst = status::done;
  std::size_t row = 0;
  const auto take = [&](const RunResult& result) {
    progress.hide();
    out << result.transcript << std::flush;
    if (auto* sheets = parts.savedSheets) sheets->insert(sheets->end(), result.sheets.begin(), result.sheets.end());
    err << result.notices;
    if (result.status != status::done) err << placeOf(table, row) << wordsOn(result.status) << std::endl;
    progress.show(++row, table.rows.size());
    worst = std::max(worst, result.status);
    return options.keepGoing || worst == status::done;
  };
  const auto play = [&](std::size_t i) { return playRow(scriptsOf(table, table.rows[i], texts), parts); };
  playInOrder(table.rows.size(), options.jobs, play, take);
  progress.hide();
  return worst;
}

}  // namespace orvane
