#pragma once

#include "surface/world.h"

namespace orvane {

// Always the defaults; what is saved is forgotten.
class NoSettings : public Settings {
 public:
  std::string GetSetting(const std::string&, const std::string&, const std::string&,
                         const std::string& defaultValue) override {
    return defaultValue;
  }
  void SaveSetting(const std::string&, const std::string&, const std::string&, const std::string&) override {}
};

}  // namespace orvane
