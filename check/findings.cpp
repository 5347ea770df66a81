#include "check/findings.h"

#include <algorithm>
#include <utility>

namespace orvane {

void Findings::add(const FindingKind& kind, const DataPlace& place, std::string text) {
  if (!place.isSound) return;
  if (!place.member.empty()) text = std::string(place.member) + " : " + text;
  findings_.push_back({std::string(place.file), place.line, place.column, kind.severity, kind.code, std::move(text)});
}

std::vector<Finding> Findings::sorted() const {
  auto sorted = findings_;
  std::sort(sorted.begin(), sorted.end());
  sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
  return sorted;
}

}  // namespace orvane
