#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "surface/chance.h"

namespace orvane {

class Desktop;
class frmFeuille;
class frmPersonnage;
struct ReferenceData;

// The globals of one run, handed to its forms. Many runs can live in one process.
struct Globals {
  Globals(Desktop& theDesktop, const ReferenceData& theData) : desktop(theDesktop), data(theData) {}

  Desktop& desktop;
  // Read-only once it was loaded.
  const ReferenceData& data;
  Chance chance;

  // The points that a contact value costs, by value from 1 to 3 (place 0 is unused). Main fills it.
  std::array<std::int16_t, 4> iContactCost{};
  // The windows last created or activated; null once they were unloaded and no other of the kind is open.
  frmPersonnage* frmCurrentPerso = nullptr;
  frmFeuille* frmCurrentFeuille = nullptr;

  // What the editor reaches in the layers above it; they fill these in.
  std::function<void(frmPersonnage&)> composeSheet;
  std::function<void()> showReadMe;
};

}  // namespace orvane
