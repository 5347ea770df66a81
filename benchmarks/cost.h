#pragma once

#include <ctime>
#include <functional>

namespace orvane::bench {

inline double secondsOf(clockid_t clock) {
  timespec now{};
  ::clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

// Seconds that the processors spent on this process, in the system too. What else runs on the machine hardly counts.
inline double processorTime() { return secondsOf(CLOCK_PROCESS_CPUTIME_ID); }
inline double wallTime() { return secondsOf(CLOCK_MONOTONIC); }

template <class Deed>
double processorTimeOf(const Deed& deed) {
  const double start = processorTime();
  deed();
  return processorTime() - start;
}

}  // namespace orvane::bench
