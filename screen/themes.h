#pragma once

#include <vector>

#include <QPalette>
#include <QString>

namespace orvane {

// The palettes of users that the windows are looked at with.
struct Theme {
  QString name;
  QPalette palette;
};

const std::vector<Theme>& themes();

}  // namespace orvane
