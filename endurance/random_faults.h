#pragma once

#include <random>

#include "tests/sheet/faulty_files.h"

namespace orvane::soak {

// The machine's files, of whose calls one in so many fails at random, or all from there on.
class RandomFaults : public test::FaultyFiles {
 public:
  explicit RandomFaults(std::mt19937& random) : random_(random) {}

  void failOnce(int inSoMany, bool forGood) {
    faultAt = [this, inSoMany, forGood](int) {
      const bool broken = forGood && met_ > 0;
      if (!broken && std::uniform_int_distribution<int>(1, inSoMany)(random_) != 1) return test::Fault::None;
      ++met_;
      return test::Fault::Failure;
    };
  }
  int met() const { return met_; }

 private:
  std::mt19937& random_;
  int met_ = 0;
};

}  // namespace orvane::soak
