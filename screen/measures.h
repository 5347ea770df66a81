#pragma once

#include <cmath>

// Twips are 1/1440 inch. A pixel of the screen is one of 96 to an inch, whatever the scale factor.
namespace orvane {

inline constexpr float twipsPerPixel = 15.0F;

inline int pixels(float twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }
inline float twips(int thePixels) { return static_cast<float>(thePixels) * twipsPerPixel; }

}  // namespace orvane
