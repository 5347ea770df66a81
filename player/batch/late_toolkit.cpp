#include "player/batch/late_toolkit.h"

#include <QLoggingCategory>

namespace orvane {

void LateToolkit::start() {
  if (application_) return;
  // What the toolkit misses in a session without a desktop is no message about a script.
  QLoggingCategory::setFilterRules("default.warning=false");
  application_.emplace(names_, argv_);
  QLoggingCategory::setFilterRules({});
}

std::unique_ptr<Canvas> LatePictures::open(std::string_view name) {
  toolkit_.start();
  return pictures_.open(name);
}

std::string LatePaper::sheet(const PrintedSheet& sheet) {
  toolkit_.start();
  return paper_.sheet(sheet);
}

std::string LatePaper::contactSheet(const std::vector<PrintedSheet>& sheets) {
  toolkit_.start();
  return paper_.contactSheet(sheets);
}

}  // namespace orvane
