#include "player/player_clock.h"

#include <cmath>

namespace orvane {
namespace {

constexpr double secondsOfDay = 24 * 60 * 60;

}  // namespace

float PlayerClock::Timer() {
  if (set_) return static_cast<float>(*set_);
  return static_cast<float>(std::fmod(static_cast<double>(timeOfDay_.Timer()) + slept_, secondsOfDay));
}

void PlayerClock::sleep(float seconds) { (set_ ? *set_ : slept_) += static_cast<double>(seconds); }

}  // namespace orvane
