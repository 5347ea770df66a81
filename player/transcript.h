#pragma once

#include <ostream>
#include <string>

namespace orvane {

// Writes what happens, a line each, in the order in which it happens; every line is flushed.
class Transcript {
 public:
  explicit Transcript(std::ostream& out) : out_(out) {}

  // The place in the scripts that is being played.
  void moveTo(const std::string& file, int line);

  void line(const std::string& text);
  // The three faults of a run. Each names the place.
  void refused(const std::string& reason);
  void expected(const std::string& difference);
  void failure(const std::string& description);

  bool hasRefusals() const { return refusals_ > 0; }
  bool hasFaults() const { return faults_ > 0; }

 private:
  void fault(const std::string& kind, const std::string& text);

  std::ostream& out_;
  std::string file_;
  int line_ = 0;
  int refusals_ = 0;
  int faults_ = 0;
};

}  // namespace orvane
