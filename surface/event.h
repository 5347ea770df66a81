#pragma once

#include <functional>
#include <utility>

namespace orvane {

class Control;

// True while the form of a control runs handlers: an unloaded form runs none.
bool runsHandlers(const Control& control);

// Keeps what handlers unload alive until the outermost of them has returned.
class HandlerScope {
 public:
  explicit HandlerScope(Control& control);
  ~HandlerScope();
  HandlerScope(const HandlerScope&) = delete;
  HandlerScope& operator=(const HandlerScope&) = delete;

 private:
  class Desktop& desktop_;
};

// The logic behind an event of a control: at most one handler, run inside the write or the act that fires it.
template <class... Args>
class Event {
 public:
  explicit Event(Control& owner) : owner_(owner) {}

  void handle(std::function<void(Args...)> handler) { handler_ = std::move(handler); }

  void fire(Args... args) {
    if (!handler_ || !runsHandlers(owner_)) return;
    HandlerScope scope(owner_);
    handler_(args...);
  }

 private:
  Control& owner_;
  std::function<void(Args...)> handler_;
};

}  // namespace orvane
