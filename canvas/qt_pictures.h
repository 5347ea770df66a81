#pragma once

#include "surface/world.h"

class QImage;

namespace orvane {

// The pictures that are stored with the program, on Qt's images. Needs a QGuiApplication, of any platform.
class QtPictures : public Pictures {
 public:
  // Each picture is decoded once for each process. Fails with a name that no picture has.
  std::unique_ptr<Canvas> open(std::string_view name) override;
};

// What a canvas of QtPictures shows, without a copy of its pixels; fails with any other canvas.
const QImage& image(const Canvas& canvas);

}  // namespace orvane
