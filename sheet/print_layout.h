#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// How large texts are in a font, in twips. The height is that of one line, also for an empty text.
struct TextMeasures {
  std::function<float(std::string_view)> width;
  std::function<float(std::string_view)> height;
};

// Where a text is to go, in twips.
struct LayoutBox {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  bool right = false;  // the lines end at the right edge
  float gap = 0;       // added to the height of each line
};

struct PrintLayout {
  struct Line {
    std::string text;
    float x;
    float y;
  };
  std::vector<Line> lines;
  // The text behind the last word that was taken; empty unless the box was full.
  std::string rest;
  // The words that found no room, joined by single blanks, without markers.
  std::string lost;
};

// Breaks a text into lines at blanks and at line ends, until the text or the box is used up. A word wider than the box
// ends it; so does a line whose bottom, with its gap, would lie outside, but for the first line.
PrintLayout layOut(std::string_view text, const LayoutBox& box, const TextMeasures& measures);

}  // namespace orvane
