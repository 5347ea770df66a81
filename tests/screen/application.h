#pragma once

#include <memory>

#include <QApplication>

namespace orvane::test {

// The one QApplication of the tests, without a screen unless the environment names one.
inline void needApplication() {
  static int count = 1;
  static char name[] = "screen_tests";
  static char* arguments[] = {name, nullptr};
  static std::unique_ptr<QApplication> application;
  if (qApp) return;
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  application = std::make_unique<QApplication>(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace orvane::test
