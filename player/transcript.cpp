#include "player/transcript.h"

#include "surface/property.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::size_t longestFault = 10000;  // characters

// Reasons may hold texts that users typed.
std::string onOneLine(const std::string& text) {
  std::string shown;
  for (const char c : text) {
    if (c == '\n' || c == '\r' || c == '\t')
      shown += c == '\n' ? "\\n" : c == '\r' ? "\\r" : "\\t";
    else
      shown += c;
  }
  return shown;
}

}  // namespace

void Transcript::moveTo(const std::string& file, int line) {
  file_ = file;
  line_ = line;
}

void Transcript::line(const std::string& text) { out_ << text << '\n' << std::flush; }

void Transcript::fault(const std::string& kind, const std::string& text) {
  ++faults_;
  line(kind + " " + onOneLine(file_) + ":" + std::to_string(line_) + ": " + onOneLine(shortened(text, longestFault)));
}

void Transcript::refused(const std::string& reason) {
  ++refusals_;
  fault("refused", reason);
}

void Transcript::expected(const std::string& difference) { fault("expected", difference); }
void Transcript::failure(const std::string& description) { fault("failure", description); }

}  // namespace orvane
