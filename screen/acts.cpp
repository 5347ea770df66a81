#include "screen/acts.h"

#include <exception>

namespace orvane {

bool Acts::perform(const std::function<void(User&)>& deed) {
  if (suspended_ > 0) return false;
  try {
    deed(user_);
    return true;
  } catch (const Refusal&) {
    return false;
  } catch (const std::exception& error) {
    desktop_.world().dialogs.failure(error.what());
    return false;
  }
}

}  // namespace orvane
