#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "surface/world.h"

namespace orvane::test {

// Dialogs that write down what is told, one text each, as "STYLE|TITLE|PROMPT" "failure|DESCRIPTION"
// and "notice|TEXT".
class LoggedDialogs : public Dialogs {
 public:
  std::vector<std::string> log;
  // The buttons to press, in order; OK when they have run out.
  std::deque<Answer> answers;
  // What the user does in a modal form.
  std::function<void(Form&)> modal;

  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) override {
    log.push_back(std::to_string(static_cast<int>(style)) + "|" + title + "|" + prompt);
    if (answers.empty()) return Answer::OK;
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  void runModal(Form& form) override {
    if (modal) modal(form);
  }
  void failure(const std::string& description) override { log.push_back("failure|" + description); }
  void notice(const std::string& text) override { log.push_back("notice|" + text); }
};

}  // namespace orvane::test
