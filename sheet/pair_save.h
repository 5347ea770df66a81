#pragma once

#include <array>
#include <string>

#include "surface/world.h"

namespace orvane {

// Writes both bitmaps of a character and puts them in place as one: a pair of before is replaced as a whole or stays.
// The lock of ./Perso is held, and no other save of that name lies there. Gives a French sentence on what stays beside
// the files, mostly none. Fails with the reason and, where something could not be taken back, with what lies on the
// disk.
std::string savePair(Files& files, const std::string& name, const std::array<std::string, 2>& bitmaps);

}  // namespace orvane
