#pragma once

#include <functional>

#include "surface/desktop.h"
#include "surface/user.h"

namespace orvane {

// The one way from a widget to the forms. An act that is refused changes nothing; while a message box waits there are
// none at all, whatever timers of widgets report.
class Acts {
 public:
  explicit Acts(Desktop& desktop) : desktop_(desktop), user_(desktop) {}

  Desktop& desktop() { return desktop_; }
  // False when the act was refused. Nothing is ever thrown.
  bool perform(const std::function<void(User&)>& deed);

  void suspend() { ++suspended_; }
  void resume() { --suspended_; }

 private:
  Desktop& desktop_;
  User user_;
  int suspended_ = 0;
};

}  // namespace orvane
