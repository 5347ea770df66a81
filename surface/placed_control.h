#pragma once

#include "surface/control.h"

namespace orvane {

// A control that code moves. Its measures count in the scale of what it stands on.
class PlacedControl : public Control {
 public:
  using Control::Control;

  float Left() const { return left_ / unit(); }
  float Top() const { return top_ / unit(); }
  float Width() const { return width_ / unit(); }
  float Height() const { return height_ / unit(); }
  void setLeft(float left) { store(left_, left * unit()); }
  void setTop(float top) { store(top_, top * unit()); }
  void setWidth(float width) { store(width_, width * unit()); }
  void setHeight(float height) { store(height_, height * unit()); }
  void Move(float left, float top);
  void Move(float left, float top, float width, float height);

  // Brings it in front of all others of its form.
  void ZOrder();
  // The higher, the further in front.
  int zOrder() const { return zOrder_; }

  // In twips, whatever the scale.
  float leftTwips() const { return left_; }
  float topTwips() const { return top_; }
  float widthTwips() const { return width_; }
  float heightTwips() const { return height_; }

 protected:
  void setSizeTwips(float width, float height);

 private:
  float unit() const;

  float left_ = 0;
  float top_ = 0;
  float width_ = 0;
  float height_ = 0;
  int zOrder_ = 0;
};

}  // namespace orvane
