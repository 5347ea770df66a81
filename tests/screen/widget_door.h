#pragma once

#include <memory>

#include "player/script_player.h"

namespace orvane::test {

// Leads scripts through the real widgets: every act is mouse and keys on the widget that bears the control's name,
// every box is answered with the mouse. What is refused must be out of reach on the screen too; after each act all
// windows must show what their forms hold, and no drawn power.
class WidgetDoor : public Door {
 public:
  WidgetDoor();
  ~WidgetDoor() override;

  Dialogs& dialogs(PlayerDialogs& player) override;
  std::unique_ptr<User> user(Run& run) override;

 protected:
  // Whose acts the widgets turn mouse and keys into.
  virtual std::unique_ptr<User> hand(Run& run);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace orvane::test
