#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>

#include "tests/screen/widget_door.h"
#include "tests/support/approved.h"
#include "tests/support/played_script.h"

namespace orvane::test {
namespace {

// The bytes of all bitmaps in the current folder, by path.
std::map<std::string, std::string> bitmaps() {
  std::map<std::string, std::string> found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator("."))
    if (entry.path().extension() == ".bmp") found[entry.path()] = bytesOf(entry.path());
  return found;
}

// The approved transcripts are those of the player; the screen has to agree, and to show what the forms hold.
TEST(BothDoors, LeadToTheSameTranscriptAndBitmaps) {
  if (std::getenv("ORVANE_REBASELINE")) GTEST_SKIP() << "the player rewrites the transcripts";
  std::size_t compared = 0;
  for (const auto& script : goldenScripts()) {
    SCOPED_TRACE(script.name);
    std::map<std::string, std::string> onWidgets;
    {
      const ScratchFolder folder(script);
      WidgetDoor door;
      expectApproved(script.expected, goldenText(played(script, &door), folder));
      onWidgets = bitmaps();
    }
    if (onWidgets.empty()) continue;
    compared += onWidgets.size();
    const ScratchFolder folder(script);
    played(script);
    EXPECT_TRUE(onWidgets == bitmaps());
  }
  EXPECT_GE(compared, 6U);
}

}  // namespace
}  // namespace orvane::test
