#pragma once

#include <sstream>

#include "canvas/qt_pictures.h"
#include "player/play_scripts.h"
#include "surface/disk_files.h"
#include "tests/support/fakes.h"
#include "tests/support/golden_scripts.h"

namespace orvane::test {

// Plays a script in the current folder with the real pictures, at midday: through a door, or by the player alone.
inline GoldenOutput played(const GoldenScript& script, Door* door = nullptr) {
  DiskFiles files;
  QtPictures pictures;
  FakeClock midday;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  const int status = playScripts(goldenArguments(script), in, out, err, {files, pictures, midday, door});
  return {out.str(), err.str(), status};
}

}  // namespace orvane::test
