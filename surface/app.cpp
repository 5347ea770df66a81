#include "surface/app.h"

namespace orvane {

const int App::Major = ORVANE_MAJOR;
const int App::Minor = ORVANE_MINOR;
const int App::Revision = ORVANE_REVISION;

std::string App::version() {
  return std::to_string(Major) + "." + std::to_string(Minor) + "." + std::to_string(Revision);
}

std::string App::versionLine(std::string_view program) { return std::string(program) + " " + version() + "\n"; }

}  // namespace orvane
