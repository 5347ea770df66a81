#pragma once

#include <string>

#include "surface/desktop.h"

namespace orvane {

// What a user does, the same for a script and a screen. Each act first checks that a user could do it, else throws a
// Refusal and has changed nothing; then moves the focus to its control (LostFocus, GotFocus), then acts.
class User {
 public:
  explicit User(Desktop& desktop) : desktop_(desktop) {}

  void click(Control& control);
  void type(Control& control, std::string text);
  void pick(Control& control, const Entry& entry);
  void row(Control& control, const Entry& row);
  void toggle(Control& control, const Entry& row);
  void edit(Control& control, const Entry& row, std::string text);
  void scroll(Control& control, int value);
  void focus(Control& control);

  // Makes a child window the active one.
  void activate(Form& form);
  // Uses the close box.
  void close(Form& form);

 private:
  void requireOpen(const Form& form) const;
  void requireReachable(const Control& control) const;
  void act(Control& control, const PreparedAct& prepared);
  void moveFocus(Control& control);

  Desktop& desktop_;
};

}  // namespace orvane
