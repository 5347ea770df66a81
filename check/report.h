#pragma once

#include <ostream>
#include <vector>

#include "check/finding.h"

namespace orvane {

enum class ReportFormat { Text, Json };

// Of a file in a folder.
std::string pathOf(const std::string& folder, std::string_view file);

// A finding a line. In texts, and for other programs, files are named by their path from the current directory.
void report(const std::vector<Finding>& findings, const std::string& folder, ReportFormat format, std::ostream& out);

}  // namespace orvane
