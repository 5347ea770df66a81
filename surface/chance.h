#pragma once

#include <bit>
#include <cstdint>

namespace orvane {

// Pseudo-random numbers that repeat with the same seed.
class Chance {
 public:
  void Randomize(float seed) { state_ = std::bit_cast<std::uint32_t>(seed); }

  // From 0 included to 1 excluded. The splitmix64 step: seeds that lie close together still give unrelated first
  // numbers.
  double Rnd() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    mixed ^= mixed >> 31;
    return static_cast<double>(mixed >> 11) * 0x1.0p-53;
  }

 private:
  std::uint64_t state_ = 0;
};

}  // namespace orvane
