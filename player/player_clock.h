#pragma once

#include <optional>

#include "surface/world.h"

namespace orvane {

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
