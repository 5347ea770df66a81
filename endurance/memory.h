#pragma once

#include <cstddef>

namespace orvane::soak {

// Bytes that are allocated and not freed.
std::size_t memoryInUse();

}  // namespace orvane::soak
