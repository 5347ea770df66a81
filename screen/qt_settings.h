#pragma once

#include <QString>

#include "surface/world.h"

namespace orvane {

// The user's folder for settings: XDG_CONFIG_HOME, else .config in HOME. Empty where neither is a folder of the user's.
QString settingsFolder();

// The per-user store: a file of texts. Without a folder, and where the disk refuses, nothing is kept.
class QtSettings final : public Settings {
 public:
  explicit QtSettings(QString folder = settingsFolder()) : folder_(std::move(folder)) {}

  std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& defaultValue) override;
  void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                   const std::string& value) override;

 private:
  QString file(const std::string& application) const;

  QString folder_;
};

}  // namespace orvane
