#pragma once

#include "surface/world.h"

namespace orvane {

// The clock of the machine, in its time zone.
class SystemClock : public Clock {
 public:
  float Timer() override;
  void sleep(float seconds) override;
};

}  // namespace orvane
