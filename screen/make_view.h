#pragma once

#include <memory>

#include "screen/view.h"

namespace orvane {

// The view of a control on the widget of its name. None for a shape, which has no widget.
// Throws std::logic_error when the layout has no widget of that name and of a class that suits the kind.
std::unique_ptr<View> makeView(Control& control, FormView& form);

}  // namespace orvane
