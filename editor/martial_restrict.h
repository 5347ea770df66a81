#pragma once

#include <cstdint>

#include "editor/globals.h"
#include "surface/list_view.h"

namespace orvane {

// The side with the larger term must show at least as many full groups of its term as the other side shows of its own;
// with equal terms that side is the offensive one. Terms are not 0.
bool restrictionAllows(std::int16_t RO, std::int16_t RD, std::int16_t iO, std::int16_t iD);

// Whether the points of a row of lvwMartialArt of frmCurrentPerso may change by iDelta. A refusal explains itself in
// txtAllDescro.
bool prcMartialRestrict(Globals& globals, const ListItem& Item, std::int16_t iDelta);

}  // namespace orvane
