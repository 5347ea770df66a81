#pragma once

#include <vector>

#include <QMdiArea>

#include "screen/child_window.h"
#include "surface/desktop.h"

namespace orvane {

// Arranges the children of a main window; the last one is the active one. Windows of a fixed size are only moved.
void arrange(QMdiArea& area, const std::vector<ChildWindow*>& windows, Arrangement arrangement);

}  // namespace orvane
