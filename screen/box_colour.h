#pragma once

#include <QWidget>

#include "surface/property.h"

namespace orvane {

// Shows the BackColor of a text or combo box: as a background, and in words for who does not see it.
void showBoxColour(QWidget& box, Colour backColor);

}  // namespace orvane
