#pragma once

#include <cstdint>
#include <string>

#include "surface/picture_box.h"
#include "surface/shape.h"

namespace orvane {

// Prints a text into a box, in the font that the picture has, and takes away the box's outline. iAlign 0 starts lines
// at the left edge, any other value ends them at the right one; iGap is added to the height of each line, twips.
// Leaves in sText what was not taken from it: nothing, unless the box was full. Words without room are noted in the
// log of the picture.
void prcPrintInShape(std::string& sText, PictureBox& pctSheet, Shape& shpBox, std::int16_t iAlign, std::int16_t iGap);

// The same for a text that nobody looks at afterwards.
inline void prcPrintInShape(std::string&& sText, PictureBox& pctSheet, Shape& shpBox, std::int16_t iAlign = 0,
                            std::int16_t iGap = 0) {
  prcPrintInShape(sText, pctSheet, shpBox, iAlign, iGap);
}

}  // namespace orvane
