#pragma once

namespace orvane::test {

// The tests of the screen have an application from their start.
inline void needApplication() {}

}  // namespace orvane::test
