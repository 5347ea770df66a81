#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "surface/world.h"

namespace orvane {

// Writes acts down as lines of a script, while they happen. The player needs the clock and the answers to the boxes of
// an act ahead of it, so an act is written once it can bring up no further box: at its end, before it waits in a
// dialog, or as another one begins inside it.
class Journal {
 public:
  // Gets whole lines, those of an act at once.
  using Sink = std::function<void(const std::string& lines)>;

  explicit Journal(Sink sink) : sink_(std::move(sink)) {}

  // An act begins: its lines, without the end of the last one.
  void begin(std::string act);
  // The act that is open is not to be written.
  void leaveOut() { open_.reset(); }
  // The open act did nothing that it is to do once more: it becomes a comment that says so.
  void setFailed(bool failed);
  // What a box of the open act was answered.
  void answered(BoxStyle style, Answer answer);
  // The time that the open act goes by: the first one that it asked for. Outside of any act it is the one given.
  float timeOf(float now);
  // The open act is over, as far as its boxes go.
  void write();

 private:
  struct OpenAct {
    std::string lines;
    bool failed = false;
    std::optional<float> time;
    std::vector<std::string> answers;
    std::size_t neededAnswers = 0;  // behind these, all boxes got their first button
  };

  Sink sink_;
  std::optional<OpenAct> open_;
};

}  // namespace orvane
