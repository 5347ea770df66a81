#pragma once

#include "surface/control.h"

namespace orvane {

// Holds other controls, with a caption.
class Frame : public Control {
 public:
  struct Design {
    std::string caption = {};
  };

  Frame(Place place, std::string name, Design design = byDefault<Design>())
      : Control(place, std::move(name)), caption_(std::move(design.caption)) {}

  const std::string& Caption() const { return caption_; }

  std::string_view kind() const override { return "cadre"; }
  bool takesFocus() const override { return false; }

 private:
  std::string caption_;
};

// A picture that is stored with the program, by its name.
class Image : public Control {
 public:
  struct Design {
    std::string picture = {};
  };

  Image(Place place, std::string name, Design design = byDefault<Design>())
      : Control(place, std::move(name)), picture_(std::move(design.picture)) {}

  const std::string& picture() const { return picture_; }

  std::string_view kind() const override { return "image"; }
  bool takesFocus() const override { return false; }

 private:
  std::string picture_;
};

}  // namespace orvane
