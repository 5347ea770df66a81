#pragma once

namespace orvane::test {

// Makes the one QApplication of all tests, without a screen unless the environment names one.
void needApplication();

}  // namespace orvane::test
