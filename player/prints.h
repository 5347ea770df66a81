#pragma once

#include "player/transcript.h"
#include "surface/desktop.h"

// The acts that print. Each throws a Refusal where there is nothing of its kind.
namespace orvane {

// All entries of a combo box or a list box, or all rows of a list view.
void printList(Transcript& transcript, const Control& control);
// The properties of all controls.
void printState(Transcript& transcript, const Form& form);
// The loaded forms.
void printWindows(Transcript& transcript, const Desktop& desktop);
// What was printed on a picture.
void printPrinted(Transcript& transcript, const Control& control);
// What found no room on the sheet.
void printLost(Transcript& transcript, const Form& form);

}  // namespace orvane
