#pragma once

#include "data/reading.h"
#include "data/reference_data.h"
#include "surface/world.h"

namespace orvane {

// Fills empty reference data from the eight files of the current directory. Whatever is missing or wrong is told in
// message boxes; this always returns, and the data hold what could be read until then.
void prcLoadData(ReferenceData& data, Files& files, Dialogs& dialogs);

// All techniques of martial_technic.txt, in file order.
using Technics = Collection<clsMartialTechnic>;

// The same for a reading that may go on behind faults, which are told to it alone. Fails as it does.
Technics readData(ReferenceData& data, Files& files, Dialogs& dialogs, Reading& reading);

}  // namespace orvane
