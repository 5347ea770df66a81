#pragma once

#include <string>

#include "surface/control.h"

namespace orvane::test {

// What an act is refused for, empty when it is not.
template <class Act>
std::string refusal(Act act) {
  try {
    act();
  } catch (const Refusal& refused) {
    return refused.reason;
  }
  return {};
}

}  // namespace orvane::test
