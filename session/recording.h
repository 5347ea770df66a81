#pragma once

#include <functional>
#include <string>
#include <utility>

#include "session/journal.h"
#include "surface/user.h"

// What stands between a user and the run, and writes all down that the player needs to do the same once more.
namespace orvane {

// Every act that was not refused, but for the one that closes the frame: with it the run is over.
class RecordingUser final : public User {
 public:
  RecordingUser(Desktop& desktop, Journal& journal) : User(desktop), desktop_(desktop), journal_(journal) {}

  void click(Control& control) override;
  void type(Control& control, std::string text) override;
  void pick(Control& control, const Entry& entry) override;
  void row(Control& control, const Entry& row) override;
  void toggle(Control& control, const Entry& row) override;
  void edit(Control& control, const Entry& row, std::string text) override;
  void endEdit(ListView& list, const ListItemRef& row, std::string text) override;
  void scroll(Control& control, int value) override;
  void focus(Control& control) override;
  void activate(Form& form) override;
  void close(Form& form) override;

 private:
  void record(std::string lines, const std::function<void()>& act);
  bool frameIsOpen() const;

  Desktop& desktop_;
  Journal& journal_;
};

class RecordingDialogs final : public Dialogs {
 public:
  RecordingDialogs(Dialogs& dialogs, Journal& journal) : dialogs_(dialogs), journal_(journal) {}

  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) override;
  void runModal(Form& form) override;
  void failure(const std::string& description) override { dialogs_.failure(description); }
  void notice(const std::string& text) override { dialogs_.notice(text); }

 private:
  Dialogs& dialogs_;
  Journal& journal_;
};

// Stands still within an act, as it will when the act is played again.
class RecordingClock final : public Clock {
 public:
  RecordingClock(Clock& clock, Journal& journal) : clock_(clock), journal_(journal) {}

  float Timer() override { return journal_.timeOf(clock_.Timer()); }
  void sleep(float seconds) override { clock_.sleep(seconds); }

 private:
  Clock& clock_;
  Journal& journal_;
};

}  // namespace orvane
