#pragma once

#include <filesystem>
#include <random>
#include <vector>

#include "endurance/tally.h"

namespace orvane::soak {

// Each is a whole run of the system in the current folder, which holds the data files. A Broken says what went wrong.

// Random acts at windows on the screen, a hundred of them at times, while the files fail.
void playRandomActs(std::mt19937& random, Tally& tally);

// Scripts that each save a sheet, while the files fail.
void playScriptsOf(const std::filesystem::path& folder, std::mt19937& random, Tally& tally);

}  // namespace orvane::soak
