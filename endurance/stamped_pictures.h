#pragma once

#include "canvas/qt_canvas.h"
#include "canvas/qt_pictures.h"

namespace orvane::soak {

// A canvas whose bitmaps say behind their pixels which save they were made for: a front begins one, its back is of it.
class StampedCanvas : public QtCanvas {
 public:
  StampedCanvas(const QImage& picture, bool isFront) : QtCanvas(picture), isFront_(isFront) {}

  std::string bitmap() const override {
    static int save = 0;
    save += isFront_;
    return QtCanvas::bitmap() + "\n" + std::to_string(::getpid()) + "-" + std::to_string(save);
  }

 private:
  bool isFront_;
};

class StampedPictures : public QtPictures {
 public:
  std::unique_ptr<Canvas> open(std::string_view name) override {
    return std::make_unique<StampedCanvas>(image(*QtPictures::open(name)), name == "recto");
  }
};

}  // namespace orvane::soak
