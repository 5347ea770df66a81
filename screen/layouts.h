#pragma once

#include <QWidget>

#include "surface/form.h"

namespace orvane {

// Fills the window of a form with the widgets of its layout. The window of a dialog is a QDialog.
// Throws std::logic_error for a form without a layout.
void layOut(const Form& form, QWidget& window);

// Makes the size hint of a window that is not shown yet count what its widgets hold by now.
void measureAnew(QWidget& window);

}  // namespace orvane
