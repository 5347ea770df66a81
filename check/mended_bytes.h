#pragma once

#include "check/findings.h"

namespace orvane {

// The bytes of a data file as the reader takes them: in Windows-1252, with line ends of today. What was otherwise is
// found, once for the whole file where it is so throughout.
std::string mendedBytes(std::string bytes, std::string_view file, Findings& findings);

}  // namespace orvane
