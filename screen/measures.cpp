#include "screen/measures.h"

#include <cmath>

#include "surface/world.h"

namespace orvane {

int pixels(float twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }
float twips(int pixels) { return static_cast<float>(pixels) * twipsPerPixel; }

QSize designSize(const Form& form) {
  const float unit = twipsPerUnit(form.ScaleMode());
  return {pixels(form.ScaleWidth() * unit), pixels(form.ScaleHeight() * unit)};
}

QSize beyondDesign(const Form& form, const QWidget& window) {
  return form.isResizable() ? window.size() - designSize(form) : QSize(0, 0);
}

QRect placeOf(const PlacedControl& control) {
  return {pixels(control.leftTwips()), pixels(control.topTwips()), pixels(control.widthTwips()),
          pixels(control.heightTwips())};
}

void placeWidget(const PlacedControl& control, QWidget& widget) {
  if (control.widthTwips() <= 0 || control.heightTwips() <= 0) return;
  if (const QRect place = placeOf(control); widget.geometry() != place) widget.setGeometry(place);
}

}  // namespace orvane
