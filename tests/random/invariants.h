#pragma once

#include <string>

#include "data/reference_data.h"
#include "editor/frmPersonnage.h"

namespace orvane::test {

// What holds for a character after every act of a user who types no numbers into the pools: the first broken rule in
// words, empty when all hold.
std::string brokenInvariant(const frmPersonnage& perso, const ReferenceData& data);

}  // namespace orvane::test
