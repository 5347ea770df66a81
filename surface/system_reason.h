#pragma once

#include <string>

namespace orvane {

// A French reason for an error number of the system, without a full stop; the system's own words for a rare one.
std::string systemReason(int error);

}  // namespace orvane
