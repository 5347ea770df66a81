#include <gtest/gtest.h>
#include <memory>

#include <QApplication>

#include "canvas/sheet_font.h"
#include "screen/program.h"

namespace orvane::test {
namespace {

// The one QApplication of all tests. It ends before the process does: Qt's platform plugins do not outlive main.
class Application : public ::testing::Environment {
 public:
  void SetUp() override {
    forgetGlyphSettings();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, arguments_);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setDoubleClickInterval(60'000);  // on a busy machine two clicks are far apart
    dressUp();
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[13] = "screen_tests";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const auto* const environment = ::testing::AddGlobalTestEnvironment(new Application);

}  // namespace
}  // namespace orvane::test
