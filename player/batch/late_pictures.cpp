#include "player/batch/late_pictures.h"

#include <QLoggingCategory>

namespace orvane {

std::unique_ptr<Canvas> LatePictures::open(std::string_view name) {
  if (!application_) {
    // What the toolkit misses in a session without a desktop is no message about a script.
    QLoggingCategory::setFilterRules("default.warning=false");
    application_.emplace(names_, argv_);
    QLoggingCategory::setFilterRules({});
  }
  return pictures_.open(name);
}

}  // namespace orvane
