#pragma once

#include <sstream>

#include "canvas/qt_pictures.h"
#include "player/play_scripts.h"
#include "surface/disk_files.h"
#include "tests/support/fakes.h"
#include "tests/support/golden_scripts.h"

namespace orvane::test {

// Plays a script in the current folder with the real pictures, at midday. Needs an application (tests/canvas/gui.h).
inline GoldenOutput played(const GoldenScript& script) {
  DiskFiles files;
  QtPictures pictures;
  FakeClock midday;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  const int status = playScripts(goldenArguments(script), in, out, err, {files, pictures, midday});
  return {out.str(), err.str(), status};
}

}  // namespace orvane::test
