#pragma once

#include <string>
#include <vector>

#include "sheet/frmFeuille.h"

namespace orvane {

// What became of a text that was printed into a box of the sheet from its left edge.
struct PrintedBox {
  std::vector<std::string> lines;  // but for empty ones
  std::string lost;                // the words that found no room
  bool wordTooWide = false;        // the first of them is alone too wide for the box

  PrintedBox(frmFeuille& sheet, const Shape& box);
  // Of all that was printed, empty for nothing.
  std::string lastWord() const;
  std::string firstLostWord() const { return lost.substr(0, lost.find(' ')); }
};

// The words of a text, which blanks separate.
std::vector<std::string> wordsOf(const std::string& text);

}  // namespace orvane
