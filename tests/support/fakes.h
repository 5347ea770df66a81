#pragma once

#include <memory>
#include <string>

#include "surface/failure.h"
#include "surface/world.h"

namespace orvane::test {

// Midday, until a test sets it; sleeping moves it on.
class FakeClock : public Clock {
 public:
  float now = 43200;

  float Timer() override { return now; }
  void sleep(float seconds) override { now += seconds; }
};

// A store that remembers nothing.
class NoSettings : public Settings {
 public:
  std::string GetSetting(const std::string&, const std::string&, const std::string&,
                         const std::string& defaultValue) override {
    return defaultValue;
  }
  void SaveSetting(const std::string&, const std::string&, const std::string&, const std::string&) override {}
};

// Every letter is 100 twips wide, every line 200 high.
class BlankCanvas : public Canvas {
 public:
  float width() const override { return 9900; }
  float height() const override { return 15420; }
  void setFont(const std::string&, float) override {}
  float TextWidth(std::string_view text) const override { return 100.0F * static_cast<float>(text.size()); }
  float TextHeight(std::string_view) const override { return 200; }
  void print(std::string_view, float, float) override {}
  std::string bitmap() const override { return "BM"; }
};

class BlankPictures : public Pictures {
 public:
  std::unique_ptr<Canvas> open(std::string_view) override { return std::make_unique<BlankCanvas>(); }
};

}  // namespace orvane::test
