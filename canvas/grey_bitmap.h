#pragma once

#include <string>

class QImage;

namespace orvane {

// The bytes of a Windows bitmap file of 24 bits a pixel, of a picture in Format_Grayscale8.
std::string greyBitmap(const QImage& picture);

}  // namespace orvane
