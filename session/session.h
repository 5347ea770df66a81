#pragma once

#include <cstddef>
#include <functional>
#include <sstream>
#include <string>

#include "player/player_world.h"
#include "player/script.h"
#include "player/stage.h"
#include "session/past_files.h"
#include "session/recording.h"
#include "shell/main_procedure.h"

namespace orvane {

// A run with a memory: what was done in it before is played once more, then a user goes on, and all he does is written
// down. The past ends where its script does, in an open dialog too.
class Session {
 public:
  // The world of the present outlives the session. The sink gets what the user does, as lines of a script.
  Session(const World& present, Journal::Sink sink);

  Run& run() { return run_; }
  // Whose acts are written down.
  User& user() { return user_; }

  // After so many acts of the past.
  std::function<void(std::size_t played)> progress = [](std::size_t) {};
  // An act of the past cannot be done any more; when this returns the past ends in front of it.
  std::function<void(const Act& act, const std::string& reason)> refused = [](const Act&, const std::string&) {};
  // A file was saved in the past.
  std::function<void(const std::string& path, const std::string& bytes)>& saved() { return files_.saved; }
  // The present begins.
  std::function<void()> arrived = [] {};

  // Behind the start of the run. Returns once the past is over and no dialog of it is open any more.
  void playPast(const Script& past);

 private:
  // In the past the script answers, in the present the user.
  class BothDialogs final : public Dialogs {
   public:
    BothDialogs(Dialogs& past, Dialogs& present, const bool& isPast)
        : past_(past), present_(present), isPast_(isPast) {}
    Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) override;
    void runModal(Form& form) override;
    void failure(const std::string& description) override { current().failure(description); }
    void notice(const std::string& text) override { current().notice(text); }

   private:
    Dialogs& current() const { return isPast_ ? past_ : present_; }

    Dialogs& past_;
    Dialogs& present_;
    const bool& isPast_;
  };

  // Likewise the time.
  class BothClocks final : public Clock {
   public:
    BothClocks(Clock& past, Clock& present, const bool& isPast) : past_(past), present_(present), isPast_(isPast) {}
    float Timer() override { return current().Timer(); }
    void sleep(float seconds) override { current().sleep(seconds); }

   private:
    Clock& current() const { return isPast_ ? past_ : present_; }

    Clock& past_;
    Clock& present_;
    const bool& isPast_;
  };

  bool playNext();
  void playAct(const Act& act);
  void arrive();

  bool isPast_ = false;
  std::ostringstream untold_;
  Transcript transcript_{untold_};
  PlayerDialogs pastDialogs_{transcript_, untold_};
  PlayerClock pastClock_;
  Journal journal_;
  BothDialogs bothDialogs_;
  BothClocks bothClocks_;
  RecordingDialogs dialogs_{bothDialogs_, journal_};
  RecordingClock clock_{bothClocks_, journal_};
  PastFiles files_;
  Run run_;
  RecordingUser user_{run_.desktop(), journal_};
  Stage stage_{run_.desktop(), user_, transcript_, pastDialogs_, pastClock_};
  const Script* script_ = nullptr;
  std::size_t next_ = 0;
};

}  // namespace orvane
