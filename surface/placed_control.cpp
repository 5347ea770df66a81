#include "surface/placed_control.h"

#include <algorithm>

#include "surface/form.h"
#include "surface/picture_box.h"

namespace orvane {

double PlacedControl::unit() const {
  if (const auto* picture = dynamic_cast<const PictureBox*>(holder())) return twipsPerUnit(picture->ScaleMode());
  return twipsPerUnit(form().ScaleMode());
}

void PlacedControl::Move(float left, float top) {
  setLeft(left);
  setTop(top);
}

void PlacedControl::Move(float left, float top, float width, float height) {
  Move(left, top);
  setWidth(width);
  setHeight(height);
}

void PlacedControl::setSizeTwips(float width, float height) {
  store(width_, static_cast<double>(width));
  store(height_, static_cast<double>(height));
}

void PlacedControl::ZOrder() {
  int front = 0;
  for (const auto* control : form().controls())
    if (const auto* other = dynamic_cast<const PlacedControl*>(control); other && other != this)
      front = std::max(front, other->zOrder_ + 1);
  store(zOrder_, front);
}

}  // namespace orvane
