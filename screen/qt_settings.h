#pragma once

#include <QString>

#include "surface/world.h"

namespace orvane {

// The per-user store: a file of texts in the user's folder for settings.
class QtSettings final : public Settings {
 public:
  QtSettings() = default;
  // In a folder of its own, for tests.
  explicit QtSettings(QString folder) : folder_(std::move(folder)) {}

  std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& defaultValue) override;
  void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                   const std::string& value) override;

 private:
  QString file(const std::string& application) const;

  QString folder_;
};

}  // namespace orvane
