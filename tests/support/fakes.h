#pragma once

#include <memory>
#include <string>

#include "surface/text.h"
#include "surface/world.h"

namespace orvane::test {

// Midday, until a test sets it; sleeping moves it on.
class FakeClock : public Clock {
 public:
  float now = 43200;

  float Timer() override { return now; }
  void sleep(float seconds) override { now += seconds; }
};

// Every character is 5 times its size in points wide, every line 20 times that high: 50 and 200 twips at 10 points.
// As a bitmap it gives the name of its picture and all that was printed on it.
class BlankCanvas : public Canvas {
 public:
  BlankCanvas(std::string_view name, float width, float height) : bytes_(name), width_(width), height_(height) {}

  float width() const override { return width_; }
  float height() const override { return height_; }
  void setFont(const std::string&, float points) override { points_ = points; }
  float TextWidth(std::string_view text) const override {
    return 5 * points_ * static_cast<float>(characterCount(text));
  }
  float TextHeight(std::string_view) const override { return 20 * points_; }
  void print(std::string_view text, float, float) override { bytes_ += "|" + std::string(text); }
  std::string bitmap() const override { return bytes_; }

 private:
  std::string bytes_;
  float width_;
  float height_;
  float points_ = 10;
};

class BlankPictures : public Pictures {
 public:
  float width = 9900;  // twips
  float height = 15420;

  std::unique_ptr<Canvas> open(std::string_view name) override {
    return std::make_unique<BlankCanvas>(name, width, height);
  }
};

}  // namespace orvane::test
