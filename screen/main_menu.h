#pragma once

#include <QMdiArea>
#include <QMenuBar>

#include "screen/acts.h"
#include "shell/frmMain.h"

namespace orvane {

// Fills the menu bar with the entries of the frame, in their order. The menu of windows lists the open children behind
// its entries, the active one ticked.
void fillMenu(QMenuBar& bar, frmMain& frame, Acts& acts);

}  // namespace orvane
