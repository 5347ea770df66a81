#pragma once

#include <cstddef>

namespace orvane::test {

// From now on the first piece of memory above this many bytes is refused, once.
void refuseMemoryAbove(std::size_t bytes);

}  // namespace orvane::test
