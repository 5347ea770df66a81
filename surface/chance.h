#pragma once

#include <cstdint>

namespace orvane {

// Pseudo-random numbers that repeat with the same seed.
class Chance {
 public:
  void Randomize(float seed);
  // From 0 included to 1 excluded.
  double Rnd();

 private:
  std::uint64_t state_ = 0;
};

}  // namespace orvane
