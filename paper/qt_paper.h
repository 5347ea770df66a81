#pragma once

#include "surface/paper.h"

namespace orvane {

// Needs a QGuiApplication, of any platform.
class QtPaper : public Paper {
 public:
  std::string sheet(const PrintedSheet& sheet) override;
  std::string contactSheet(const std::vector<PrintedSheet>& sheets) override;
};

}  // namespace orvane
