#pragma once

#include <string>
#include <string_view>

#include "player/table.h"

namespace orvane {

// Throws a ScriptError where a script has a ${placeholder} that is no column of the table. The file is what messages
// call the script.
void requireColumnsOf(const Table& table, const std::string& file, std::string_view script);

// The script with the cells of a row in the place of its placeholders, fit to stand in quotes. Comments stay.
std::string filledScript(std::string_view script, const Table& table, const Table::Row& row);

}  // namespace orvane
