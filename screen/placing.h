#pragma once

#include <QWidget>

#include "surface/placed_control.h"

namespace orvane {

// Puts a widget where code has put its control; one that was never given a size stays where the layout has it.
void placeWidget(const PlacedControl& control, QWidget& widget);

}  // namespace orvane
