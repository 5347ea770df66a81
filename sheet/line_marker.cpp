#include "sheet/line_marker.h"

namespace orvane {
namespace {

std::string replaced(std::string_view text, std::string_view lineEnd) {
  std::string result;
  while (true) {
    const auto place = text.find(lineEnd);
    result += text.substr(0, place);
    if (place == std::string_view::npos) return result;
    result += lineMarker;
    text.remove_prefix(place + lineEnd.size());
  }
}

}  // namespace

std::string withLineMarkers(std::string_view text) {
  std::string marked(text);
  for (std::string_view lineEnd : {"\n\r", "\r\n", "\n", "\r"}) marked = replaced(marked, lineEnd);
  return marked;
}

}  // namespace orvane
