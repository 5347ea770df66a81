#pragma once

#include <vector>

#include "check/data_folder.h"
#include "check/offer.h"
#include "surface/world.h"

// Each adds its findings to the folder.
namespace orvane {

// What the records hold, and how those of one file fit those of another.
void checkContents(DataFolder& folder);

// What the rules do with the skills, and the profiles with their keys. Tells the offer which vehicles have moved.
void checkSkills(DataFolder& folder, Offer& offer);

// What the rules let characters be.
struct Applicable {
  std::vector<std::int32_t> profiles;  // positions of those that can be applied with every vehicle
  double martialPoints = 0;            // the most that one of them can come to
};

// What the rules do with each profile and, where it has one, each vehicle.
Applicable checkProfiles(DataFolder& folder, const Offer& offer, Pictures& pictures);

// Which powers and grades the rules offer, and how.
void checkPowers(DataFolder& folder, Pictures& pictures);

// What the rules do with the types of techniques and, for those who have so many points at most, the restrictions of
// arts.
void checkMartialArts(DataFolder& folder, double martialPoints);

// What finds no room on the sheet, in the font of the pictures, with those profiles.
void checkSheets(DataFolder& folder, const std::vector<std::int32_t>& profiles, Pictures& pictures);

}  // namespace orvane
