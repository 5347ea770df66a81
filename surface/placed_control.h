#pragma once

#include "surface/control.h"

namespace orvane {

// A control that code moves. Its measures count in the scale of what it stands on.
class PlacedControl : public Control {
 public:
  using Control::Control;

  float Left() const { return static_cast<float>(left_ / unit()); }
  float Top() const { return static_cast<float>(top_ / unit()); }
  float Width() const { return static_cast<float>(width_ / unit()); }
  float Height() const { return static_cast<float>(height_ / unit()); }
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
  float leftTwips() const { return static_cast<float>(left_); }
  float topTwips() const { return static_cast<float>(top_); }
  float widthTwips() const { return static_cast<float>(width_); }
  float heightTwips() const { return static_cast<float>(height_); }

 protected:
  void setSizeTwips(float width, float height);

 private:
  double unit() const;

  // Twips; precise enough to give back any measure that was written in another scale.
  double left_ = 0;
  double top_ = 0;
  double width_ = 0;
  double height_ = 0;
  int zOrder_ = 0;
};

}  // namespace orvane
