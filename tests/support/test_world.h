#pragma once

#include <map>
#include <memory>
#include <string>

#include "surface/control.h"
#include "surface/failure.h"
#include "tests/support/logged_dialogs.h"
#include "tests/support/memory_files.h"

namespace orvane::test {

// Stands still but for what is slept.
class FixedClock : public Clock {
 public:
  float now = 0;

  float Timer() override { return now; }
  void sleep(float seconds) override { now += seconds; }
};

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

class NoPictures : public Pictures {
 public:
  std::unique_ptr<Canvas> open(std::string_view name) override {
    throw Failure("Pas d'image " + std::string(name) + ".");
  }
};

// A world without screen, disk or time.
struct TestWorld {
  LoggedDialogs dialogs;
  FixedClock clock;
  MemorySettings settings;
  MemoryFiles files;
  NoPictures pictures;

  World world() { return {dialogs, clock, settings, files, pictures}; }
};

// What an act is refused for, empty when it is not.
template <class Act>
std::string refusal(Act act) {
  try {
    act();
  } catch (const Refusal& refused) {
    return refused.reason;
  }
  return {};
}

}  // namespace orvane::test
