#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include <QGuiApplication>

#include "canvas/qt_pictures.h"
#include "player/play_scripts.h"
#include "surface/disk_files.h"
#include "tests/support/fakes.h"
#include "tests/support/golden_scripts.h"

namespace orvane::test {
namespace {

GoldenOutput played(const GoldenScript& script) {
  DiskFiles files;
  QtPictures pictures;
  FakeClock midday;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  const int status = playScripts(goldenArguments(script), in, out, err, {files, pictures, midday});
  return {out.str(), err.str(), status};
}

TEST(GoldenScripts, PlayAsApproved) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  int count = 1;
  char name[] = "player_tests";
  char* arguments[] = {name, nullptr};
  const QGuiApplication application(count, arguments);
  const auto scripts = goldenScripts();
  ASSERT_FALSE(scripts.empty());
  for (const auto& script : scripts) {
    const ScratchFolder folder(script);
    expectGolden(script, goldenText(played(script), folder));
  }
}

}  // namespace
}  // namespace orvane::test
