#pragma once

#include <QEvent>

#include "surface/command_button.h"

namespace orvane {

// What the keys "+" and Ctrl+Right ask for is 1, "-" and Ctrl+Left -1, any other event 0.
int stepAskedBy(const QEvent& event);

// On the same tab or in the same frame.
bool standTogether(const Control& one, const Control& other);

// The arrow button that takes such a step of the control, the one beside it; null for none.
CommandButton* arrowBeside(const Control& control, int step);

}  // namespace orvane
