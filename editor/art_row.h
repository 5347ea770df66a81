#pragma once

#include "editor/numbers_in_controls.h"

namespace orvane {

// The columns of lvwMartialArt behind the name of an art, which only its first row bears.
struct ArtRow {
  // Direction is the name of one of the two below, Position that of the art in colPersoArt.
  enum Column { Direction = 1, Points, Position };
};

// The column of lvwMartialTechnic behind the name of a technique: its position in the art of the selected row.
struct TechnicRow {
  enum Column { Position = 1 };
};

// What the two rows of an art are called, and the type of the techniques that each can buy.
struct Direction {
  const char* name;
  const char* technicType;
};
inline constexpr Direction offensive{"Offensif", "o"};
inline constexpr Direction defensive{"Défensif", "d"};

}  // namespace orvane
