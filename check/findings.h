#pragma once

#include <vector>

#include "check/finding_kinds.h"
#include "check/places.h"

namespace orvane {

// What was found so far.
class Findings {
 public:
  // The text of a field's finding is preceded by the name of the field in the help. What the reader found a fault in
  // has no second finding.
  void add(const FindingKind& kind, const DataPlace& place, std::string text);
  // By their places, each once.
  std::vector<Finding> sorted() const;

 private:
  std::vector<Finding> findings_;
};

}  // namespace orvane
