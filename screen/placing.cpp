#include "screen/placing.h"

#include "screen/measures.h"

namespace orvane {

void placeWidget(const PlacedControl& control, QWidget& widget) {
  if (control.widthTwips() <= 0 || control.heightTwips() <= 0) return;
  const QRect place(pixels(control.leftTwips()), pixels(control.topTwips()), pixels(control.widthTwips()),
                    pixels(control.heightTwips()));
  if (widget.geometry() != place) widget.setGeometry(place);
}

}  // namespace orvane
