#pragma once

#include "data/records.h"
#include "editor/frmPersonnage.h"
#include "sheet/frmFeuille.h"

namespace orvane {

// The name of a drawn power as the sheet shows it, from its entry on the mutation tab.
std::string drawnPowerName(const std::string& entry);

// Prints the drawn power of a character on the front, in the size that the font has there.
void printDrawnPower(frmFeuille& sheet, const frmPersonnage& perso, const clsMutation& power);

}  // namespace orvane
