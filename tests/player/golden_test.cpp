#include <gtest/gtest.h>

#include "tests/canvas/gui.h"
#include "tests/player/played_script.h"

namespace orvane::test {
namespace {

[[maybe_unused]] const auto* const gui = ::testing::AddGlobalTestEnvironment(new Gui);

TEST(GoldenScripts, PlayAsApproved) {
  const auto scripts = goldenScripts();
  ASSERT_FALSE(scripts.empty());
  for (const auto& script : scripts) {
    const ScratchFolder folder(script);
    expectGolden(script, goldenText(played(script), folder));
  }
}

}  // namespace
}  // namespace orvane::test
