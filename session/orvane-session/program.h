#pragma once

#include <string>

namespace orvane {

// The desktop on the session in that file, in the current directory, for as long as the user goes on, with a PDF beside
// each pair of bitmaps or without. Needs a QApplication; gives the exit status: 0, 1 where it could not start, 2 where
// the file cannot be read or played.
int runSession(const std::string& path, bool pdf);

}  // namespace orvane
