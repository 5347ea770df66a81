#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "player/transcript.h"
#include "surface/world.h"

namespace orvane {

// Answers message boxes with what was laid down, else with their first button, and writes them down.
class PlayerDialogs : public Dialogs {
 public:
  explicit PlayerDialogs(Transcript& transcript) : transcript_(transcript) {}

  // Plays on until the form is unloaded.
  std::function<void(Form&)> playModal;

  // Behind the answers that are laid down already.
  void layDown(const std::vector<Answer>& answers);
  void dropAnswers() { answers_.clear(); }

  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) override;
  void runModal(Form& form) override { playModal(form); }
  void failure(const std::string& description) override { transcript_.failure(description); }

 private:
  Answer nextAnswer(BoxStyle style, const std::string& title);

  Transcript& transcript_;
  std::deque<Answer> answers_;
};

}  // namespace orvane
