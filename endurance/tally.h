#pragma once

#include <stdexcept>
#include <string>

namespace orvane::soak {

// What a process has done. All counts.
struct Tally {
  int rounds = 0;
  int acts = 0;
  int windows = 0;
  int faults = 0;
  int saves = 0;
  int pairs = 0;  // that were looked at
};

// A rule that did not hold.
struct Broken : std::runtime_error {
  using std::runtime_error::runtime_error;
};

inline void require(bool holds, const std::string& rule) {
  if (!holds) throw Broken(rule);
}

}  // namespace orvane::soak
