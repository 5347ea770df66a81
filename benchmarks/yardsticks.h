#pragma once

#include <array>
#include <string>

#include "benchmarks/character.h"

// What the program is measured against, as simple as each can be.
namespace orvane::bench {

// Both sides of a sheet: the picture decoded, a measure for each word, a painter for each line, and QImage::save.
void composeTheObviousWay(const Prints& prints);

using TwoFiles = std::array<std::string, 2>;

// Files of that contents, new ones in the current directory; synced each, if so wished.
void writePlainly(const TwoFiles& bytes, bool synced);
void removePlainFiles();

}  // namespace orvane::bench
