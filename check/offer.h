#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/reference_data.h"
#include "surface/world.h"

namespace orvane {

// A favourite vehicle, by the skill that it brings.
struct Vehicle {
  std::string name;
  std::int32_t skill = 0;  // position in colSkill
  bool isInPlace = true;   // false: that skill is found to be another's, and means nothing about the vehicle
};

// What a player has to choose from.
struct Offer {
  std::vector<std::int32_t> profiles;  // positions in colProfil
  std::vector<Vehicle> vehicles;
};

Offer offerOf(const ReferenceData& data, Pictures& pictures);

// Whether a skill's name has a word for the vehicle.
bool isAbout(const std::string& skillName, const Vehicle& vehicle);

}  // namespace orvane
