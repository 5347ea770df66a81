#pragma once

#include <vector>

#include "check/data_folder.h"
#include "check/offer.h"
#include "surface/world.h"

// Each adds its findings to the folder.
namespace orvane {

// What the records hold, and how those of one file fit those of another.
void checkContents(DataFolder& folder);

// What the rules do with the skills, and the profiles with their keys.
void checkSkills(DataFolder& folder, const Offer& offer);

// What the rules do with each profile and, where it has one, each vehicle. Gives the positions of the profiles that can
// be applied with every vehicle.
std::vector<std::int32_t> checkProfiles(DataFolder& folder, const Offer& offer, Pictures& pictures);

// Which powers and grades the rules offer, and how.
void checkPowers(DataFolder& folder, Pictures& pictures);

// What the rules do with the types of techniques and the restrictions of arts.
void checkMartialArts(DataFolder& folder);

// What finds no room on the sheet, in the font of the pictures, with those profiles.
void checkSheets(DataFolder& folder, const std::vector<std::int32_t>& profiles, Pictures& pictures);

}  // namespace orvane
