#pragma once

#include <gtest/gtest.h>
#include <memory>

#include <QGuiApplication>

#include "canvas/sheet_font.h"

namespace orvane::test {

// Fonts need an application, which has to go before main returns.
class Gui : public testing::Environment {
 public:
  void SetUp() override {
    forgetGlyphSettings();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(count_, arguments_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[7] = "orvane";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace orvane::test
