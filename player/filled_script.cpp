#include "player/filled_script.h"

#include <algorithm>
#include <functional>

#include "player/script_parser.h"
#include "player/script_words.h"
#include "surface/property.h"
#include "surface/text.h"

namespace orvane {
namespace {

// Gives what stands in the place of a placeholder, by its name.
using Filling = std::function<std::string(std::string_view)>;

std::string filledLine(std::string_view line, const Filling& filling) {
  std::string filled;
  for (;;) {
    const auto start = line.find("${");
    filled += line.substr(0, start);
    if (start == std::string_view::npos) return filled;
    const auto end = line.find('}', start);
    if (end == std::string_view::npos) throw LineError{"accolade non fermée derrière « $ »"};
    filled += filling(line.substr(start + 2, end - start - 2));
    line.remove_prefix(end + 1);
  }
}

bool isComment(std::string_view line) { return line.starts_with('#'); }

std::string escaped(std::string_view text) {
  const std::string shown = quoted(text);
  return shown.substr(1, shown.size() - 2);
}

std::size_t columnNamed(std::string_view name, const Table& table) {
  const auto found = std::find(table.columns.begin(), table.columns.end(), name);
  if (found != table.columns.end()) return static_cast<std::size_t>(found - table.columns.begin());
  std::string known;
  for (const auto& column : table.columns) known += (known.empty() ? "« " : ", « ") + column + " »";
  throw LineError{"« " + std::string(name) + " » n'est pas une colonne de " + table.file + ", qui a " +
                  shortened(known)};
}

}  // namespace

void requireColumnsOf(const Table& table, const std::string& file, std::string_view script) {
  for (int number = 1; !script.empty(); ++number) {
    const auto line = cutLine(script);
    try {
      if (!isComment(line)) filledLine(line, [&](auto name) { return table.columns[columnNamed(name, table)]; });
    } catch (const LineError& error) {
      throw ScriptError{file + ":" + std::to_string(number) + ": " + error.reason};
    }
  }
}

std::string filledScript(std::string_view script, const Table& table, const Table::Row& row) {
  std::string filled;
  while (!script.empty()) {
    const auto line = cutLine(script);
    filled += isComment(line)
                  ? std::string(line)
                  : filledLine(line, [&](auto name) { return escaped(row.cells[columnNamed(name, table)]); });
    filled += '\n';
  }
  return filled;
}

}  // namespace orvane
