#pragma once

#include "surface/command_button.h"

namespace orvane {

// The button that the Escape key presses; none when the form has none.
CommandButton* cancelButton(const Form& form);

}  // namespace orvane
