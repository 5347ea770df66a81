#pragma once

#include <array>
#include <string>
#include <vector>

namespace orvane {

// A line that stands on a side of the sheet, by its top left corner.
struct PrintedText {
  std::string text;
  float x;  // twips
  float y;
  float points;
};

// What was printed of one character: all that its sheet is but the form itself.
struct PrintedSheet {
  std::string character;
  std::string player;
  std::array<std::vector<PrintedText>, 2> sides;  // front, back
};

// Puts sheets onto A4 pages, with the form under them, as PDF files: every text where the bitmap has it. The same
// sheets give the same bytes. All of it fails with a French reason.
class Paper {
 public:
  virtual ~Paper() = default;
  // Two pages, at the size of the paper form.
  virtual std::string sheet(const PrintedSheet& sheet) = 0;
  // Two characters to a page, each with its front and back side by side.
  virtual std::string contactSheet(const std::vector<PrintedSheet>& sheets) = 0;
};

}  // namespace orvane
