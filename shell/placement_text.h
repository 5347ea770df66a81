#pragma once

#include <optional>
#include <string>

namespace orvane {

// A measure of the main window, twips, as the settings store it: the shortest plain decimal that gives the same number
// back ("1000", "6500.5").
std::string placementText(float twips);

// None for a text that is no number.
std::optional<float> placementValue(const std::string& text);

}  // namespace orvane
