#pragma once

#include <string>

namespace orvane {

// Shortens the session in that file by the data of the current directory, and tells how it went. Gives the exit status:
// 0, or 2 where the file is as it was since it cannot be read, played or written.
int shortenSession(const std::string& path);

}  // namespace orvane
