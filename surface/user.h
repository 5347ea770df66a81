#pragma once

#include <string>

#include "surface/desktop.h"
#include "surface/list_item.h"

namespace orvane {

// What a user does, the same for a script and a screen. Each act first checks that a user could do it, else throws a
// Refusal and has changed nothing; then moves the focus to its control (LostFocus, GotFocus), then acts.
// Tests replace it by a user with a mouse and a keyboard.
class User {
 public:
  explicit User(Desktop& desktop) : desktop_(desktop) {}
  virtual ~User() = default;
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  virtual void click(Control& control);
  virtual void type(Control& control, std::string text);
  virtual void pick(Control& control, const Entry& entry);
  virtual void row(Control& control, const Entry& row);
  virtual void toggle(Control& control, const Entry& row);
  virtual void edit(Control& control, const Entry& row, std::string text);
  // The same in two steps, for an editor that stays open for a while: first with the selected row, after a click on it;
  // false where its name may not be edited.
  bool beginEdit(ListView& list);
  virtual void endEdit(ListView& list, const ListItemRef& row, std::string text);
  virtual void scroll(Control& control, int value);
  virtual void focus(Control& control);

  // Makes a child window the active one.
  virtual void activate(Form& form);
  // Uses the close box.
  virtual void close(Form& form);

  // Where no act could come to the control now, for its own state or for a dialog in front: a Refusal.
  Control& requireReachable(Control& control) const;

 protected:
  void requireOpen(const Form& form) const;  // throws a Refusal

 private:
  void act(Control& control, const Effect& effect);
  void moveFocus(Control& control);

  Desktop& desktop_;
};

}  // namespace orvane
