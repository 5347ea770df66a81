#pragma once

#include "editor/globals.h"

namespace orvane {

// Checks the character, closes an earlier sheet of its name, opens a new one and prints every field on it. Makes no
// sheet, and leaves the earlier one, when an essential constraint is broken.
void composeSheet(Globals& globals, frmPersonnage& perso);

}  // namespace orvane
