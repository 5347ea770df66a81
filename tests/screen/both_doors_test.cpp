#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>

#include "tests/screen/application.h"
#include "tests/screen/widget_door.h"
#include "tests/support/game_files.h"
#include "tests/support/played_script.h"

namespace orvane::test {
namespace {

GoldenOutput playedOnWidgets(const GoldenScript& script) {
  WidgetDoor door;
  return played(script, &door);
}

// The bytes of all bitmaps in the current folder, by path.
std::map<std::string, std::string> bitmaps() {
  std::map<std::string, std::string> found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator("."))
    if (entry.path().extension() == ".bmp") found[entry.path()] = bytesOf(entry.path());
  return found;
}

// The approved transcripts are those of the player; the screen only has to agree.
TEST(BothDoors, LeadToTheSameTranscript) {
  if (std::getenv("ORVANE_REBASELINE")) GTEST_SKIP() << "the player rewrites the transcripts";
  needApplication();
  const auto scripts = goldenScripts();
  ASSERT_FALSE(scripts.empty());
  for (const auto& script : scripts) {
    SCOPED_TRACE(script.name);
    const ScratchFolder folder(script);
    expectGolden(script, goldenText(playedOnWidgets(script), folder));
  }
}

TEST(BothDoors, WriteTheSameBytes) {
  needApplication();
  std::size_t compared = 0;
  for (const auto& script : goldenScripts()) {
    SCOPED_TRACE(script.name);
    std::map<std::string, std::string> byPlayer;
    {
      const ScratchFolder folder(script);
      played(script, nullptr);
      byPlayer = bitmaps();
    }
    if (byPlayer.empty()) continue;
    const ScratchFolder folder(script);
    playedOnWidgets(script);
    EXPECT_TRUE(bitmaps() == byPlayer);
    compared += byPlayer.size();
  }
  EXPECT_GE(compared, 6U);
}

}  // namespace
}  // namespace orvane::test
