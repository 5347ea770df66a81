#pragma once

#include <unistd.h>

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

namespace orvane::bench {

// Ends the process, without the work of an end, once its main window was shown and painted.
inline void endOncePainted() {
  auto* timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, [turns = 0]() mutable {
    for (auto* window : QApplication::topLevelWidgets())
      if (qobject_cast<QMainWindow*>(window) && window->isVisible()) ++turns;
    if (turns == 3) ::_exit(0);
  });
  timer->start(0);
}

}  // namespace orvane::bench
