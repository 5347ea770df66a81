#pragma once

#include <string>

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
// The names of skills, a line each, into one of the three columns.
void printSkillNames(frmFeuille& sheet, int column, std::string names);

}  // namespace orvane
