#pragma once

namespace orvane {

// The style of all windows. Needs a QApplication.
void dressUp();
// The same, in French, and the application goes on without a window.
void prepareDesktop();

// The whole program on the screen, in the current directory. Needs a QApplication; gives its exit status.
int runProgram();

}  // namespace orvane
