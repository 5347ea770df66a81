#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "surface/chance.h"

namespace orvane {

class Desktop;
class frmFeuille;
class frmPersonnage;
struct PrintedSheet;
struct ReferenceData;

// The globals of one run, handed to its forms. Many runs can live in one process.
struct Globals {
  Globals(Desktop& theDesktop, const ReferenceData& theData) : desktop(theDesktop), data(theData) {}

  Desktop& desktop;
  // Read-only once it was loaded.
  const ReferenceData& data;
  Chance chance;

  // Prices by the value that they lead to. Filled by Main.
  std::array<std::int16_t, 4> iContactCost{};
  // The windows last created or activated; null once they were unloaded and no other of the kind is open.
  frmPersonnage* frmCurrentPerso = nullptr;
  frmFeuille* frmCurrentFeuille = nullptr;

  // What the editor reaches in the layers above it; they fill these in.
  std::function<void(frmPersonnage&)> composeSheet;
  std::function<void()> showReadMe;
  // Told that the files of a sheet could not be saved, or not all of them.
  std::function<void()> sheetNotSaved;
  // Gives the PDF that is saved beside the bitmaps of a sheet; none where there is to be no such file.
  std::function<std::string(const PrintedSheet&)> paperOf;
  // Told of each sheet whose bitmaps were saved.
  std::function<void(const PrintedSheet&)> sheetSaved;
};

}  // namespace orvane
