#pragma once

#include <QWidget>

#include "surface/placed_control.h"

// From twips to pixels of the screen, which are 96 to an inch whatever the scale factor, and back.
namespace orvane {

int pixels(float twips);
float twips(int pixels);

// Puts a widget where code has put its control; one that was never given a size stays where the layout has it.
void placeWidget(const PlacedControl& control, QWidget& widget);

}  // namespace orvane
