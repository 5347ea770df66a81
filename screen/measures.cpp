#include "screen/measures.h"

#include <cmath>

#include "surface/world.h"

namespace orvane {

int pixels(float twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }
float twips(int pixels) { return static_cast<float>(pixels) * twipsPerPixel; }

void placeWidget(const PlacedControl& control, QWidget& widget) {
  if (control.widthTwips() <= 0 || control.heightTwips() <= 0) return;
  const QRect place(pixels(control.leftTwips()), pixels(control.topTwips()), pixels(control.widthTwips()),
                    pixels(control.heightTwips()));
  if (widget.geometry() != place) widget.setGeometry(place);
}

}  // namespace orvane
