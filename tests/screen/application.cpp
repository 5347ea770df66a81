#include "tests/screen/application.h"

#include <gtest/gtest.h>
#include <memory>

#include <QApplication>

#include "screen/program.h"

namespace orvane::test {
namespace {

// Ends before the process does: Qt's platform plugins do not outlive main.
class ApplicationEnvironment : public ::testing::Environment {
 public:
  void TearDown() override { application.reset(); }

  static inline std::unique_ptr<QApplication> application;
};

const auto* const environment = ::testing::AddGlobalTestEnvironment(new ApplicationEnvironment);

}  // namespace

void needApplication() {
  static int count = 1;
  static char name[] = "screen_tests";
  static char* arguments[] = {name, nullptr};
  if (qApp) return;
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ApplicationEnvironment::application = std::make_unique<QApplication>(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  dressUp();
}

}  // namespace orvane::test
