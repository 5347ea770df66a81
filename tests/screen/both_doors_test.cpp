#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "canvas/qt_pictures.h"
#include "player/play_scripts.h"
#include "surface/disk_files.h"
#include "tests/screen/application.h"
#include "tests/screen/widget_door.h"
#include "tests/support/fakes.h"
#include "tests/support/golden_scripts.h"

namespace orvane::test {
namespace {

// Scripts that widgets cannot play alike, each with the reason.
const std::map<std::string, std::string> cannotBeTheSame = {};

GoldenOutput playedOnWidgets(const GoldenScript& script) {
  DiskFiles files;
  QtPictures pictures;
  FakeClock midday;
  WidgetDoor door;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  const int status = playScripts(goldenArguments(script), in, out, err, {files, pictures, midday, &door});
  return {out.str(), err.str(), status};
}

// The approved transcripts are those of the player; the screen only has to agree.
TEST(BothDoors, LeadToTheSameTranscript) {
  if (std::getenv("ORVANE_REBASELINE")) GTEST_SKIP() << "the player rewrites the transcripts";
  needApplication();
  const auto scripts = goldenScripts();
  ASSERT_FALSE(scripts.empty());
  for (const auto& script : scripts) {
    if (cannotBeTheSame.contains(script.name)) continue;
    SCOPED_TRACE(script.name);
    const ScratchFolder folder(script);
    expectGolden(script, goldenText(playedOnWidgets(script), folder));
  }
}

}  // namespace
}  // namespace orvane::test
