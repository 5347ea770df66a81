#pragma once

#include <QWidget>

#include "surface/form.h"
#include "surface/placed_control.h"

// From twips to pixels of the screen, which are 96 to an inch whatever the scale factor, and back.
namespace orvane {

int pixels(float twips);
float twips(int pixels);

// By how much the window of a form is larger than the form was designed for.
QSize beyondDesign(const Form& form, const QWidget& window);
// The design itself.
QSize designSize(const Form& form);

// Where code has put a control.
QRect placeOf(const PlacedControl& control);
// Puts a widget where code has put its control; one that was never given a size stays where the layout has it.
void placeWidget(const PlacedControl& control, QWidget& widget);

}  // namespace orvane
