#pragma once

#include "surface/control.h"

namespace orvane {

// A rectangle on a picture, in twips inside it.
class Shape : public Control {
 public:
  struct Design {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
  };

  Shape(Place place, std::string name, Design design) : Control(place, std::move(name)), box_(design) {}

  float Left() const { return box_.left; }
  float Top() const { return box_.top; }
  float Width() const { return box_.width; }
  float Height() const { return box_.height; }
  // 1 a solid outline, 0 none.
  int BorderStyle() const { return borderStyle_; }
  void setBorderStyle(int style) { store(borderStyle_, style); }

  std::string_view kind() const override { return "rectangle"; }
  PropertyList properties() const override { return {{"BorderStyle", borderStyle_}, {"Visible", Visible()}}; }
  bool takesFocus() const override { return false; }

 private:
  Design box_;
  int borderStyle_ = 1;
};

}  // namespace orvane
