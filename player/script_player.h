#pragma once

#include <cstddef>
#include <memory>
#include <ostream>
#include <vector>

#include "player/player_world.h"
#include "player/script.h"
#include "player/stage.h"
#include "shell/main_procedure.h"
#include "surface/paper.h"

namespace orvane {

// Another way to the forms than the direct one: tests play scripts through the widgets of the screen.
class Door {
 public:
  virtual ~Door() = default;
  // What shows the dialogs and boxes that the player's own are told of and answer.
  virtual Dialogs& dialogs(PlayerDialogs& player) = 0;
  // The clock of the run.
  virtual Clock& clock(Clock& player) { return player; }
  // Who does the acts; ends before the run. Called once, before its start.
  virtual std::unique_ptr<User> user(Run& run) = 0;
};

// Shows how far a long work has come, beside what it prints.
class Progress {
 public:
  virtual ~Progress() = default;
  virtual void show(std::size_t ended, std::size_t of) = 0;
  virtual void hide() = 0;
};

// The parts of the outside world that the player does not bring itself.
struct PlayerParts {
  Files& files;
  Pictures& pictures;
  Clock& timeOfDay;
  Door* door = nullptr;
  Progress* progress = nullptr;
  Paper* paper = nullptr;                            // null: no PDF beside the bitmaps
  std::vector<PrintedSheet>* savedSheets = nullptr;  // gets each sheet that is saved
};

// One run of the system that scripts are played in, one after another.
class ScriptPlayer {
 public:
  // Notices go to err.
  ScriptPlayer(std::ostream& out, std::ostream& err, PlayerParts parts, bool keepGoing);

  // Starts the system, plays, and closes it. False when an act was refused, an expectation failed or a failure reached
  // no handler. Once only.
  bool play(const std::vector<Script>& scripts);
  // The files of some sheet could not be saved.
  bool hasUnsavedSheets() const { return unsavedSheets_; }

 private:
  void playScript(const Script& script);
  // False at the end of the script, or of the run.
  bool playNext();
  void playAct(const Act& act);
  void playModal(Form& form);
  bool stopped() const { return !keepGoing_ && transcript_.hasRefusals(); }

  Transcript transcript_;
  PlayerDialogs dialogs_;
  PlayerClock clock_;
  NoSettings settings_;
  Run run_;
  std::unique_ptr<User> user_;
  Stage stage_;
  bool keepGoing_;
  bool unsavedSheets_ = false;
  const Script* script_ = nullptr;
  std::size_t next_ = 0;
};

}  // namespace orvane
