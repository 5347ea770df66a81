#include "screen/end_requests.h"

#include <csignal>

#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

class EndOfTheProgram : public DesktopFixture {
 protected:
  void expectClosed() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return !windows.mainWindow(); }));
    EXPECT_TRUE(settings.values.count("Tessaly/Settings/MainLeft"));
  }

  const EndRequests requests{windows};
};

// While the splash is up there is nothing to close yet.
TEST_F(EndOfTheProgram, IsHeardBeforeThereIsAMainWindow) {
  ::raise(SIGTERM);
  turn();
  run.Main();
  expectClosed();
}

TEST_F(EndOfTheProgram, ClosesWhatWaitsForAnAnswerFirst) {
  start();
  newCharacter();
  onceOpen<QWidget>([](QWidget&) { ::raise(SIGHUP); });
  menu("mnuHelpAbout");
  expectClosed();
}

}  // namespace
}  // namespace orvane::test
