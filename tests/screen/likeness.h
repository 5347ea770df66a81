#pragma once

#include <string>

#include <QWidget>

#include "screen/windows.h"
#include "surface/form.h"

namespace orvane::test {

// Null for a form without an open window.
QWidget* windowOf(const Windows& windows, const Form& form);

// Where a window does not show what its form holds, a line for each control and property; empty when it is all alike.
std::string unlike(const Form& form, const QWidget& window);
// The same for all windows of a desktop, and whether the active one is in front.
std::string unlike(const Desktop& desktop, const Windows& windows);

}  // namespace orvane::test
