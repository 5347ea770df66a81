#pragma once

#include <memory>

#include <QMessageBox>

#include "player/script_player.h"
#include "screen/screen_dialogs.h"
#include "tests/screen/widget_user.h"

namespace orvane::test {

// Shows every box and dialog on the screen. Boxes are answered with the mouse, as the script lays down.
class WidgetDialogs : public Dialogs {
 public:
  WidgetDialogs(PlayerDialogs& player, ScreenDialogs& screen) : player_(player), screen_(screen) {}

  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) override;
  void runModal(Form& form) override;
  void failure(const std::string& description) override;
  void notice(const std::string& text) override;

 private:
  PlayerDialogs& player_;
  ScreenDialogs& screen_;
};

// Leads scripts through the real widgets.
class WidgetDoor : public Door {
 public:
  Dialogs& dialogs(PlayerDialogs& player) override;
  std::unique_ptr<User> user(Run& run) override;

 private:
  ScreenDialogs screen_;
  std::unique_ptr<WidgetDialogs> dialogs_;
};

}  // namespace orvane::test
