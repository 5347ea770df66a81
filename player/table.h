#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// What characters of a run differ in: a column for each placeholder of a script, a row for each character.
struct Table {
  struct Row {
    int line = 0;  // of the file, from 1
    std::vector<std::string> cells;
  };
  std::string file;
  std::vector<std::string> columns;
  std::vector<Row> rows;
};

// Parses comma-separated values (RFC 4180) in UTF-8, the names of the columns in front. Empty lines are skipped. The
// file is what messages call it. Throws a ScriptError.
Table parseTable(const std::string& file, std::string_view bytes);

}  // namespace orvane
