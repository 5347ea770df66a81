#include "surface/system_clock.h"

#include <chrono>
#include <ctime>
#include <thread>

namespace orvane {

float SystemClock::Timer() {
  using namespace std::chrono;
  const auto now = system_clock::now();
  const std::time_t whole = system_clock::to_time_t(time_point_cast<seconds>(now));
  std::tm local{};
  localtime_r(&whole, &local);
  const duration<float> fraction = now - time_point_cast<seconds>(now);
  return static_cast<float>((local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec) + fraction.count();
}

void SystemClock::sleep(float seconds) { std::this_thread::sleep_for(std::chrono::duration<float>(seconds)); }

}  // namespace orvane
