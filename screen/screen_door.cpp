#include "screen/screen_door.h"

namespace orvane {

bool ScreenDoor::act(const Deed& deed) {
  bool done = false;
  if (suspended_ > 0) return done;
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
