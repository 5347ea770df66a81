#pragma once

#include <vector>

#include "benchmarks/folders.h"
#include "benchmarks/row.h"

namespace orvane::bench {

// All of the table. The folders outlive the rows.
std::vector<Row> allRows(const Folders& folders);

// Bytes that each open character window takes with its sheet, on the screen. In a process of its own.
double weighWindows(const Path& sources);

}  // namespace orvane::bench
