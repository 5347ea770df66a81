#pragma once

#include <stdexcept>

namespace orvane {

// An operation that could not be done. The text is French, for the person at the screen.
// Whoever starts a user act catches it; it never crosses a toolkit's event loop.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace orvane
