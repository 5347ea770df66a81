#pragma once

#include <string>
#include <string_view>

namespace orvane {

// A line end in texts for the sheet: the word of the marker between two blanks.
inline constexpr std::string_view lineMarkerWord = "[CR]";
inline const std::string lineMarker = " [CR] ";

// The text with a marker for each line end. LF CR counts as one before CR LF does, so that CR LF CR LF gives three.
std::string withLineMarkers(std::string_view text);

}  // namespace orvane
