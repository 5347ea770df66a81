#pragma once

#include "player/script.h"
#include "player/transcript.h"
#include "surface/user.h"

namespace orvane {

class PlayerClock;
class PlayerDialogs;

// What acts find in a run: its windows, and the controls by their names.
class Stage {
 public:
  Stage(Desktop& desktop, User& user, Transcript& transcript, PlayerDialogs& dialogs, PlayerClock& clock)
      : desktop_(desktop), user_(user), transcript_(transcript), dialogs_(dialogs), clock_(clock) {}

  Desktop& desktop() { return desktop_; }
  User& user() { return user_; }
  Transcript& transcript() { return transcript_; }
  PlayerDialogs& dialogs() { return dialogs_; }
  PlayerClock& clock() { return clock_; }

  // The modal dialog, else the active child. Throws a Refusal when there is neither.
  Form& activeForm() const;
  // A menu entry of the frame, or a control of the active window. Throws a Refusal when there is none.
  Control& control(const ControlName& name) const;
  // By position in Forms, or by the caption of a child. Throws a Refusal when there is none.
  Form& window(const Entry& which) const;

 private:
  Control* menuEntry(const ControlName& name) const;

  Desktop& desktop_;
  User& user_;
  Transcript& transcript_;
  PlayerDialogs& dialogs_;
  PlayerClock& clock_;
};

}  // namespace orvane
