#include <cstdlib>
#include <gtest/gtest.h>

#include "tests/screen/widget_door.h"
#include "tests/support/played_script.h"

namespace orvane::test {
namespace {

// The approved transcripts are those of the player; the screen has to agree, and to show what the forms hold.
TEST(BothDoors, LeadToTheSameTranscriptAndBitmaps) {
  if (std::getenv("ORVANE_REBASELINE")) GTEST_SKIP() << "the player rewrites the transcripts";
  std::size_t compared = 0;
  for (const auto& script : goldenScripts()) {
    SCOPED_TRACE(script.name);
    WidgetDoor door;
    const PlayedScript onWidgets(script, &door);
    expectApproved(script.expected, onWidgets.text());
    const auto bitmaps = onWidgets.bitmaps();
    if (bitmaps.empty()) continue;
    compared += bitmaps.size();
    EXPECT_TRUE(bitmaps == PlayedScript(script).bitmaps());
  }
  EXPECT_GE(compared, 6U);
}

}  // namespace
}  // namespace orvane::test
