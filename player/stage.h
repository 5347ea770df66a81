#pragma once

#include "player/script.h"
#include "player/transcript.h"
#include "surface/user.h"

namespace orvane {

class PlayerClock;
class PlayerDialogs;

// What acts find in a run: its windows, and the controls by their names.
struct Stage {
  Desktop& desktop;
  User& user;
  Transcript& transcript;
  PlayerDialogs& dialogs;
  PlayerClock& clock;

  // The modal dialog, else the active child. Throws a Refusal when there is neither.
  Form& activeForm() const;
  // A menu entry of the frame, or a control of the active window. Throws a Refusal when there is none.
  Control& control(const ControlName& name) const;
  // By position in Forms, or by the caption of a child. Throws a Refusal when there is none.
  Form& window(const Entry& which) const;
};

}  // namespace orvane
