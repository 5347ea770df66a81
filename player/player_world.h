#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <ostream>
#include <string_view>
#include <vector>

#include "player/transcript.h"
#include "surface/world.h"

// The parts of the outside world that the player brings itself.
namespace orvane {

// The buttons of message boxes, by the names that scripts and transcripts use.
const char* buttonName(Answer button);
std::optional<Answer> buttonNamed(std::string_view name);

// In their order on the box.
std::vector<Answer> buttonsOf(BoxStyle style);

// Answers message boxes with what was laid down, else with their first button, and writes them down. Notices are no
// part of the transcript.
class PlayerDialogs : public Dialogs {
 public:
  PlayerDialogs(Transcript& transcript, std::ostream& notices) : transcript_(transcript), notices_(notices) {}

  // Plays on until the form is unloaded.
  std::function<void(Form&)> playModal;

  // Behind the answers that are laid down already.
  void layDown(const std::vector<Answer>& answers);
  void dropAnswers() { answers_.clear(); }

  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) override;
  void runModal(Form& form) override { playModal(form); }
  void failure(const std::string& description) override { transcript_.failure(description); }
  void notice(const std::string& text) override { notices_ << "orvane-batch: " << text << std::endl; }

 private:
  Answer nextAnswer(BoxStyle style, const std::string& title);

  Transcript& transcript_;
  std::ostream& notices_;
  std::deque<Answer> answers_;
};

// The time of day until a script sets it; from then on it stands still. Waiting costs no real time.
class PlayerClock : public Clock {
 public:
  explicit PlayerClock(Clock& timeOfDay) : timeOfDay_(timeOfDay) {}

  void set(float seconds) { set_ = static_cast<double>(seconds); }

  float Timer() override;
  void sleep(float seconds) override;

 private:
  Clock& timeOfDay_;
  double slept_ = 0;
  std::optional<double> set_;
};

}  // namespace orvane
