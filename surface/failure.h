#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orvane {

// An operation that could not be done. The text is French, for the person at the screen.
// Whoever starts a user act catches it; it never crosses a toolkit's event loop.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The offset of a position among count of them, which are counted from first. Fails outside: "Pas d'entrée 9 dans
// lstContact."
inline std::size_t offsetOf(int position, int first, int count, std::string_view thing, std::string_view holder) {
  if (position >= first && position - first < count) return static_cast<std::size_t>(position - first);
  throw Failure(std::string("Pas ").append(thing) + " " + std::to_string(position) + " dans " + std::string(holder) +
                ".");
}

}  // namespace orvane
