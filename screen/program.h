#pragma once

namespace orvane {

// The whole program on the screen, in the current directory. Needs a QApplication; gives its exit status.
int runProgram();

}  // namespace orvane
