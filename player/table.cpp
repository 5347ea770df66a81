#include "player/table.h"

#include <algorithm>

#include "player/script_parser.h"
#include "player/script_words.h"

namespace orvane {
namespace {

// The bytes of a table, cut into rows and these into cells. Throws a LineError.
class TableReader {
 public:
  explicit TableReader(std::string_view bytes) : rest_(bytes) {}

  bool atEnd() const { return rest_.empty(); }
  // The line that was begun last.
  int line() const { return line_; }

  Table::Row row() {
    Table::Row row{++line_, {}};
    do row.cells.push_back(cell());
    while (skip(","));
    if (!skipLineEnd() && !atEnd()) refuseHere();
    line_ += lineEndsInCells_;
    lineEndsInCells_ = 0;
    return row;
  }

 private:
  bool skip(std::string_view text) {
    if (!rest_.starts_with(text)) return false;
    rest_.remove_prefix(text.size());
    return true;
  }
  bool skipLineEnd() { return skip("\r\n") || skip("\n"); }

  [[noreturn]] void refuseHere() const {
    if (rest_.starts_with('\r')) throw LineError{"fin de ligne ancienne (CR seul)"};
    throw LineError{"un guillemet au milieu d'un champ ou un texte derrière"};
  }

  std::string cell() {
    return skip("\"") ? quotedCell() : take(std::min(rest_.find_first_of(",\"\r\n"), rest_.size()));
  }

  std::string quotedCell() {
    std::string text;
    for (;;) {
      const auto quote = rest_.find('"');
      if (quote == std::string_view::npos) throw LineError{"guillemet non fermé"};
      text += take(quote);
      skip("\"");
      if (!skip("\"")) break;
      text += '"';
    }
    lineEndsInCells_ += static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    return text;
  }

  std::string take(std::size_t length) {
    std::string text(rest_.substr(0, length));
    rest_.remove_prefix(length);
    return text;
  }

  std::string_view rest_;
  int line_ = 0;
  int lineEndsInCells_ = 0;
};

void requireColumns(const std::vector<std::string>& columns) {
  // As spreadsheets write it where numbers have a decimal comma.
  if (columns.size() == 1 && columns.front().find(';') != std::string::npos)
    throw LineError{"les champs sont séparés par des points-virgules, et devraient l'être par des virgules"};
  for (auto column = columns.begin(); column != columns.end(); ++column) {
    if (column->empty()) throw LineError{"une colonne n'a pas de nom"};
    if (std::find(columns.begin(), column, *column) != column) throw LineError{"deux colonnes « " + *column + " »"};
  }
}

bool isEmpty(const Table::Row& row) { return row.cells.size() == 1 && row.cells.front().empty(); }

void addRow(Table& table, Table::Row row) {
  if (isEmpty(row)) return;
  for (const auto& cell : row.cells) requireUtf8(cell);
  if (table.columns.empty()) {
    requireColumns(row.cells);
    table.columns = std::move(row.cells);
  } else if (row.cells.size() != table.columns.size()) {
    throw LineError{std::to_string(row.cells.size()) + " champs pour " + std::to_string(table.columns.size()) +
                    " colonnes"};
  } else {
    table.rows.push_back(std::move(row));
  }
}

}  // namespace

Table parseTable(const std::string& file, std::string_view bytes) {
  Table table{file, {}, {}};
  TableReader reader(withoutByteOrderMark(bytes));
  try {
    while (!reader.atEnd()) addRow(table, reader.row());
  } catch (const LineError& error) {
    throw ScriptError{file + ":" + std::to_string(reader.line()) + ": " + error.reason};
  }
  if (table.rows.empty()) throw ScriptError{file + ": le tableau n'a pas de ligne derrière celle des colonnes"};
  return table;
}

}  // namespace orvane
