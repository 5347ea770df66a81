#pragma once

#include <functional>

#include "surface/user.h"

namespace orvane {

// What a user does at the screen.
using Deed = std::function<void(User&)>;

// The one way from a widget to the forms. An act that is refused changes nothing; while a message box waits there are
// none at all, whatever timers of widgets report.
class ScreenDoor {
 public:
  // The user outlives the door.
  ScreenDoor(Desktop& desktop, User& user) : desktop_(desktop), user_(user) {}

  // False when the act was refused. Nothing is ever thrown.
  bool act(const Deed& deed);

  // How to end an edit whose text does not count yet: called ahead of the next act. None where no edit is open.
  void keepEditOpen(std::function<void()> end) { endEdit_ = std::move(end); }

  void suspend() { ++suspended_; }
  void resume() { --suspended_; }

 private:
  Desktop& desktop_;
  User& user_;
  std::function<void()> endEdit_;
  int suspended_ = 0;
};

}  // namespace orvane
