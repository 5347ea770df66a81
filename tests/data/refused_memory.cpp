#include "tests/data/refused_memory.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();
std::size_t largestPiece = unlimited;

}  // namespace

namespace orvane::test {

void refuseMemoryAbove(std::size_t bytes) { largestPiece = bytes; }

}  // namespace orvane::test

void* operator new(std::size_t size) {
  const bool refused = size > largestPiece;
  if (refused) largestPiece = unlimited;
  void* const memory = refused ? nullptr : std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
