#pragma once

#include <QMdiArea>
#include <QMenuBar>

#include "screen/screen_door.h"
#include "shell/frmMain.h"

namespace orvane {

// Fills the menu bar with the entries of the frame, in their order. The menu of windows lists the open children behind
// its entries, the active one ticked.
void fillMenu(QMenuBar& bar, frmMain& frame, ScreenDoor& door);

}  // namespace orvane
