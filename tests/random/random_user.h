#pragma once

#include <random>
#include <string>
#include <vector>

#include "surface/user.h"

namespace orvane::test {

// A user who does something at random at whatever window asks for it. The same seed does the same.
class RandomUser {
 public:
  // All acts are those of the user.
  RandomUser(User& user, Desktop& desktop, unsigned seed)
      : user_(user), desktop_(desktop), random_(seed), spender_(seed % 2 == 1) {}

  // One act at the active window, or at the frame where none is open.
  void act(Form& frame);
  // In a modal dialog: acts until it is closed, at last by its close box.
  void actModal(Form& dialog);
  Answer answer(BoxStyle style);

  const std::string& lastAct() const { return lastAct_; }

 private:
  int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
  bool oneIn(int count) { return below(count) == 0; }
  void actAt(Form& form);
  void actOn(Control& control);
  void openOrSwitchWindow(Form& frame);
  std::string text();

  User& user_;
  Desktop& desktop_;
  std::mt19937 random_;
  // Every other user seldom steps back, and so empties pools.
  bool spender_;
  std::string lastAct_;
};

}  // namespace orvane::test
