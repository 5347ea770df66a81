#pragma once

#include <cstdio>
#include <cstdlib>

namespace orvane::fuzz {

// Ends the program where the input has shown a fault.
inline void require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", rule);
  std::abort();
}

}  // namespace orvane::fuzz
