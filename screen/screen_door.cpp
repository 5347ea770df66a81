#include "screen/screen_door.h"

#include <utility>

namespace orvane {

bool ScreenDoor::act(const Deed& deed) {
  bool done = false;
  if (suspended_ > 0) return done;
  if (const auto endEdit = std::exchange(endEdit_, {})) endEdit();
  desktop_.perform([&] {
    try {
      deed(user_);
      done = true;
    } catch (const Refusal&) {
    }
  });
  return done;
}

}  // namespace orvane
