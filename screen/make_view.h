#pragma once

#include <memory>

#include "screen/view.h"

namespace orvane {

// The view of a control on the widget of its name. None for a shape, which has no widget.
// Throws std::logic_error where the layout has none, and for one of a class that does not suit the kind.
std::unique_ptr<View> makeView(Control& control, QWidget* widget, FormView& form);

}  // namespace orvane
