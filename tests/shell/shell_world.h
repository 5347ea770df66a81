#pragma once

#include <map>
#include <string>

#include "tests/support/fakes.h"
#include "tests/support/logged_dialogs.h"
#include "tests/support/memory_files.h"

namespace orvane::test {

// By "APPLICATION/SECTION/KEY".
class MemorySettings : public Settings {
 public:
  std::map<std::string, std::string> values;

  std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& defaultValue) override {
    const auto found = values.find(application + "/" + section + "/" + key);
    return found == values.end() ? defaultValue : found->second;
  }
  void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                   const std::string& value) override {
    values[application + "/" + section + "/" + key] = value;
  }
};

// A world without screen, disk or time.
struct ShellWorld {
  LoggedDialogs dialogs;
  FakeClock clock;
  MemorySettings settings;
  MemoryFiles files;
  BlankPictures pictures;

  World world() { return {dialogs, clock, settings, files, pictures}; }
};

}  // namespace orvane::test
