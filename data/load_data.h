#pragma once

#include "data/reference_data.h"
#include "surface/world.h"

namespace orvane {

// Fills empty reference data from the eight files of the current directory. Whatever is missing or wrong is told in
// message boxes; this always returns, and the data hold what could be read until then.
void prcLoadData(ReferenceData& data, Files& files, Dialogs& dialogs);

}  // namespace orvane
