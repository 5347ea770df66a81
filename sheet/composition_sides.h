#pragma once

namespace orvane {

class frmFeuille;
class frmPersonnage;

// Sizes of the sheet's font, points.
inline constexpr float workingSize = 10;
inline constexpr float smallSize = 8;
inline constexpr float equipmentSize = 9;

void setFontSizes(frmFeuille& sheet, float points);

void composeRecto(frmFeuille& sheet, const frmPersonnage& perso);
// Leaves the font of both pictures at the size of the equipment text, if that was printed.
void composeVerso(frmFeuille& sheet, const frmPersonnage& perso);

}  // namespace orvane
