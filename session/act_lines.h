#pragma once

#include <string>

#include "surface/desktop.h"
#include "surface/list_view.h"

// How acts are written down, without the end of the last line. By the texts that a person knows, where they lead to the
// same place.
namespace orvane {

// "window "Anne Ravel"": makes a child the active one.
std::string windowLine(const Desktop& desktop, const Form& form);
// The same and an end of line, where the player would not look for a control in this form as it is; else nothing.
std::string wayTo(const Desktop& desktop, const Form& form);

std::string targetLine(const char* act, const Control& control);
std::string textLine(const char* act, const Control& control, const std::string& text);
std::string entryLine(const char* act, const Control& control, const Entry& entry);

}  // namespace orvane
