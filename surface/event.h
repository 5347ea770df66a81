#pragma once

#include <functional>
#include <utility>

namespace orvane {

class Control;

// Runs a handler of a control, unless its form was unloaded. What handlers unload stays alive until the outermost of
// them has returned.
void runHandler(const Control& owner, const std::function<void()>& handler);

// The logic behind an event of a control: at most one handler, run inside the write or the act that fires it.
template <class... Args>
class Event {
 public:
  explicit Event(const Control& owner) : owner_(owner) {}

  void handle(std::function<void(Args...)> handler) { handler_ = std::move(handler); }

  void fire(Args... args) {
    if (handler_) runHandler(owner_, [&] { handler_(args...); });
  }

 private:
  const Control& owner_;
  std::function<void(Args...)> handler_;
};

}  // namespace orvane
