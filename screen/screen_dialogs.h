#pragma once

#include "surface/world.h"

namespace orvane {

class Windows;

// Message boxes and modal windows on the screen.
class ScreenDialogs final : public Dialogs {
 public:
  // The windows outlive every call below.
  void setWindows(Windows& windows) { windows_ = &windows; }

  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) override;
  void runModal(Form& form) override;
  // A critical box.
  void failure(const std::string& description) override;
  // A box with an exclamation mark.
  void notice(const std::string& text) override;

 private:
  Windows* windows_ = nullptr;
};

}  // namespace orvane
